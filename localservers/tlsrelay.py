"""Puts TLS in front of a server that knows none: what comes in is handed on in clear."""
import asyncio
import ssl
import threading


async def _copy(reader, writer):
    try:
        while data := await reader.read(65536):
            writer.write(data)
            await writer.drain()
    except OSError:
        pass
    writer.close()


async def _serve(context, target, started):
    async def relay(reader, writer):
        plain_reader, plain_writer = await asyncio.open_connection("127.0.0.1", target)
        await asyncio.gather(_copy(reader, plain_writer), _copy(plain_reader, writer))

    server = await asyncio.start_server(relay, "127.0.0.1", 0, ssl=context)
    started(server.sockets[0].getsockname()[1])
    await server.serve_forever()


def start(certificate, key, target, started):
    """Runs a relay to the port on a thread of its own, and calls started with the relay's port."""
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    threading.Thread(
        target=lambda: asyncio.run(_serve(context, target, started)), daemon=True).start()
