#!/usr/bin/env python3
"""The one loopback copy of the maker's site, for the run command, the screenshots and every
test that starts the program. Serves a folder on 127.0.0.1 as `python3 -m http.server` does, and
names in each log line the process that sent the request, so that a test tells its own program's
requests from those of anything else on the machine that fetches from the same address.

    site_server.py PORT FOLDER [PATIENCE_SECONDS] [--silent]

The port is the one the program under test was built for. While another server holds it, this
one retries for PATIENCE_SECONDS (default 0), then exits with status 3 and says so. Once
listening it prints "serving ..." on standard error. With --silent it takes every connection and
never answers (a site that hangs), printing "accepted" for each."""

import functools
import http.server
import os
import socketserver
import sys
import time


def client_socket_inode(client_port, server_port):
    """The inode of the client's end of a loopback TCP connection to this server."""
    for table in ("/proc/net/tcp", "/proc/net/tcp6"):
        try:
            with open(table) as lines:
                next(lines)
                for line in lines:
                    fields = line.split()
                    local = int(fields[1].rsplit(":", 1)[1], 16)
                    remote = int(fields[2].rsplit(":", 1)[1], 16)
                    if local == client_port and remote == server_port:
                        return fields[9]
        except OSError:
            pass
    return None


def socket_owner(inode):
    """The process id holding the socket, or "?"."""
    if inode is None:
        return "?"
    target = f"socket:[{inode}]"
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            for fd in os.listdir(f"/proc/{pid}/fd"):
                try:
                    if os.readlink(f"/proc/{pid}/fd/{fd}") == target:
                        return pid
                except OSError:
                    pass
        except OSError:
            pass
    return "?"


class Handler(http.server.SimpleHTTPRequestHandler):
    def parse_request(self):
        # While the request is being read, the client still holds its end of the connection.
        self.client_pid = socket_owner(
            client_socket_inode(self.client_address[1], self.server.server_address[1]))
        return super().parse_request()

    def log_message(self, format, *args):
        sys.stderr.write("%s - [%s] %s pid=%s\n" % (self.address_string(),
                                                    self.log_date_time_string(), format % args,
                                                    getattr(self, "client_pid", "?")))


class SilentServer(socketserver.TCPServer):
    """Accepts and holds every connection without reading or answering it."""

    allow_reuse_address = True

    def __init__(self, address, _handler):
        super().__init__(address, None)
        self.held = []

    def process_request(self, request, client_address):
        self.held.append(request)
        print("accepted", file=sys.stderr, flush=True)


def main():
    args = [arg for arg in sys.argv[1:] if arg != "--silent"]
    silent = len(args) != len(sys.argv) - 1
    port, root = int(args[0]), args[1]
    patience = float(args[2]) if len(args) > 2 else 0.0
    handler = functools.partial(Handler, directory=root)
    server_class = SilentServer if silent else http.server.ThreadingHTTPServer
    deadline = time.monotonic() + patience
    while True:
        try:
            server = server_class(("127.0.0.1", port), handler)
            break
        except OSError as error:
            if time.monotonic() > deadline:
                print(f"cannot listen on 127.0.0.1:{port}: {error}", file=sys.stderr)
                sys.exit(3)
            time.sleep(0.5)
    print(f"serving {root} on 127.0.0.1:{port}", file=sys.stderr, flush=True)
    server.serve_forever()


if __name__ == "__main__":
    main()
