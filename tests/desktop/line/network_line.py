#!/usr/bin/env python3
"""Runs a command with a network line of its own, on which every byte is one that a test asked for.

    network_line.py command...

The command runs in a network of its own, in which nothing else moves. Tests plug adapters in
and let them receive and send by the lines that they write to a port on the loopback, whose
number is in the environment variable TREMOLUX_TEST_LINE:

    add NAME          an adapter appears
    move NAME IN OUT  so many bytes come in and so many go out, in one packet or more

Each is answered with "ok" when it has happened, or with what went wrong. It takes Linux, the package
iproute2 and the rights to make a network: without them the command runs without such a line.
"""
import fcntl
import os
import socket
import socketserver
import struct
import subprocess
import sys
import threading

TUNSETIFF = 0x400454CA
IFF_TUN_NO_PI = 0x0001 | 0x1000

LARGEST_PACKET = 1500
IP_HEAD, UDP_HEAD = 20, 8


def ip(*words):
    if subprocess.run(["ip", *words], check=False).returncode:
        raise OSError("ip " + " ".join(words))


class Adapter:
    """A tunnel whose other end is this process."""

    def __init__(self, name, number):
        self.network = f"10.77.{number}."
        self.tunnel = os.open("/dev/net/tun", os.O_RDWR)
        fcntl.ioctl(self.tunnel, TUNSETIFF, struct.pack("16sH14x", name.encode(), IFF_TUN_NO_PI))
        # The system would say hello by itself.
        ip("link", "set", name, "addrgenmode", "none")
        ip("address", "add", self.network + "1/24", "dev", name)
        ip("link", "set", name, "up")

    def close(self):
        os.close(self.tunnel)

    def receive(self, size):
        """Packets for an address that is nobody's, so that nobody answers."""
        for part in packets(size):
            head = struct.pack("!BBHHHBBH4s4s", 0x45, 0, part, 0, 0, 64, 253, 0,
                               socket.inet_aton(self.network + "2"), socket.inet_aton("192.0.2.1"))
            os.write(self.tunnel, head + bytes(part - len(head)))

    def send(self, size):
        with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as out:
            for part in packets(size):
                out.sendto(bytes(part - IP_HEAD - UDP_HEAD), (self.network + "2", 9))
                if len(os.read(self.tunnel, 65536)) != part:
                    raise OSError("something else was sent")


def packets(size):
    """Sizes of packets that are so much together; none is smaller than its head."""
    if size == 0:
        return
    while size > LARGEST_PACKET:
        part = min(LARGEST_PACKET, size - IP_HEAD - UDP_HEAD)
        yield part
        size -= part
    if size < IP_HEAD + UDP_HEAD:
        raise ValueError(f"a packet has at least {IP_HEAD + UDP_HEAD} bytes")
    yield size


class Line(socketserver.StreamRequestHandler):
    adapters = {}

    def handle(self):
        for request in self.rfile:
            try:
                self.perform(*request.decode().split())
                answer = "ok"
            except Exception as error:  # whatever it is, the test must hear of it
                answer = f"{type(error).__name__}: {error}"
            self.wfile.write(answer.encode() + b"\n")
        while self.adapters:
            self.adapters.popitem()[1].close()

    def perform(self, word, name, received="0", sent="0"):
        if word == "add":
            self.adapters[name] = Adapter(name, len(self.adapters))
        elif word == "move":
            self.adapters[name].receive(int(received))
            self.adapters[name].send(int(sent))
        else:
            raise ValueError(word)


def serve(command):
    try:
        ip("link", "set", "lo", "up")
        Adapter("probe", 250).close()
    except OSError as error:
        print(f"no adapters can be made: {error}", file=sys.stderr)
        return subprocess.call(command)
    with socketserver.TCPServer(("127.0.0.1", 0), Line) as server:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        environment = dict(os.environ, TREMOLUX_TEST_LINE=str(server.server_address[1]))
        return subprocess.call(command, env=environment)


def main():
    command = sys.argv[1:]
    if command[0] == "--inside":
        return serve(command[1:])
    # Without the rights of root, a process may have those of a world of its own.
    for rights in ([], ["--map-root-user"]):
        unshare = ["unshare", "--net", *rights]
        if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL, check=False).returncode == 0:
            os.execvp("unshare", [*unshare, sys.executable, __file__, "--inside", *command])
    print("no rights to make a network", file=sys.stderr)
    return subprocess.call(command)


if __name__ == "__main__":
    sys.exit(main())
