"""A server that says prepared things: one at the start of each connection, then one for each line.

Options: answers (texts whose characters are bytes). After the last answer the connection is
closed. The lines that come are logged, of "PASS" and "AUTH" the first word.
"""
import asyncio

import serverlink


async def serve():
    answers = [answer.encode("latin-1") for answer in serverlink.begin()["answers"]]

    async def talk(reader, writer):
        try:
            for answer in answers[:-1]:
                writer.write(answer)
                line = (await reader.readline()).decode(errors="replace").rstrip("\r\n")
                is_secret = line.startswith(("PASS", "AUTH"))
                serverlink.log(line.split()[0] if is_secret else line)
            writer.write(answers[-1])
            await writer.drain()
        except (OSError, ValueError):
            pass
        writer.close()

    server = await asyncio.start_server(talk, "127.0.0.1", 0)
    serverlink.ready(server.sockets[0].getsockname()[1])
    await server.serve_forever()


asyncio.run(serve())
