"""A mail server (SMTP) that keeps what it gets.

Options: security ("plain", "startTls", "implicitTls"), certificate and key (files), login and
password (empty: nobody has to log in), refusedSender, refusedReceiver, silentAt (the command that
is never answered, "GREETING" and "ENDOFDATA" among them).
"""
import asyncio
import functools
import ssl

from aiosmtpd.smtp import SMTP, AuthResult

import serverlink

COMMANDS = ("HELO", "EHLO", "STARTTLS", "AUTH", "MAIL", "RCPT", "DATA", "RSET", "NOOP", "QUIT",
            "VRFY", "EXPN", "HELP")


async def stay_silent():
    serverlink.silent()
    await asyncio.Event().wait()


class Session(SMTP):
    """One connection: logs the commands, and never answers the one that is to stay silent."""

    def __init__(self, *arguments, silent_at, **options):
        self.silent_at = silent_at
        super().__init__(*arguments, **options)

    async def _handle_client(self):
        if self.silent_at == "GREETING":
            await stay_silent()
        await super()._handle_client()

    async def push(self, status):
        if str(status).startswith("500"):
            serverlink.log(f"refused: {status}")
        await super().push(status)


def recorded(command):
    """Wraps the base's method for the command. What AUTH carries is a secret."""
    method = getattr(SMTP, f"smtp_{command}")

    @functools.wraps(method)
    async def answer(self, argument):
        shown = argument.split()[0] if argument and command == "AUTH" else argument
        serverlink.log(f"{command} {shown}" if shown else command)
        if self.silent_at == command:
            await stay_silent()
        await method(self, argument)
    return answer


for name in COMMANDS:
    setattr(Session, f"smtp_{name}", recorded(name))


class Mailbox:
    """Takes senders, receivers and mails, or refuses them."""

    def __init__(self, options):
        self.options = options
        self.count = 0

    def authenticate(self, server, session, envelope, mechanism, data):
        given = data.login.decode(errors="replace"), data.password.decode(errors="replace")
        right = given == (self.options["login"], self.options["password"])
        return AuthResult(success=right, handled=False, auth_data=data)

    async def handle_MAIL(self, server, session, envelope, address, mail_options):
        if address == self.options["refusedSender"]:
            return "550 5.7.1 This sender is not welcome"
        envelope.mail_from = address
        return "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, rcpt_options):
        if address == self.options["refusedReceiver"]:
            return "550 5.1.1 There is nobody of this name"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if self.options["silentAt"] == "ENDOFDATA":
            await stay_silent()
        self.count += 1
        name = f"mail-{self.count}"
        with open(name, "wb") as file:
            file.write(envelope.original_content)
        login = session.login_data or b""
        tls = self.options["security"] == "implicitTls" or session.ssl is not None
        serverlink.report("mail", {
            "sender": envelope.mail_from, "receivers": envelope.rcpt_tos, "file": name,
            "tls": tls, "login": login.decode(errors="replace")})
        return "250 OK"


async def serve():
    options = serverlink.begin()
    mailbox = Mailbox(options)
    context = None
    if options["security"] != "plain":
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(options["certificate"], options["key"])
    start_tls = options["security"] == "startTls"

    def session():
        return Session(
            mailbox, silent_at=options["silentAt"], hostname="localhost", enable_SMTPUTF8=True,
            tls_context=context if start_tls else None, require_starttls=start_tls,
            authenticator=mailbox.authenticate, auth_required=bool(options["login"]),
            auth_require_tls=start_tls)

    server = await asyncio.get_running_loop().create_server(
        session, "127.0.0.1", 0, ssl=context if options["security"] == "implicitTls" else None)
    serverlink.ready(server.sockets[0].getsockname()[1])
    await server.serve_forever()


asyncio.run(serve())
