"""The process that makes the PDFs.

Before each document stands a line on the standard input with its length in bytes and the size of
its pages: "5120 A4". The answer is a line with "pdf" or "trouble" and a length, and as many bytes
of a PDF or of an error message. The process ends where its input ends or when it is asked to, and
takes its temporary files with it.
"""
import os
import signal
import sys
import tempfile

sys.path[:] = filter(None, sys.path)  # no module of the current folder
source, target = sys.stdin.buffer, os.fdopen(os.dup(1), "wb")
os.dup2(2, 1)  # whatever else prints, a library of C too, does not get among the answers
signal.signal(signal.SIGINT, signal.SIG_IGN)  # it is for the program that asks
signal.signal(signal.SIGTERM, lambda *_: sys.exit())

from weasyprint import CSS, HTML


def load_nothing(url, *_, **__):
    raise ValueError("nothing is loaded: " + url)


with tempfile.TemporaryDirectory(prefix="orravane-") as tempfile.tempdir:
    while line := source.readline():
        length, paper = line.decode().split()
        html = source.read(int(length)).decode()
        try:
            pages = CSS(string="@page { size: %s }" % paper)
            document = HTML(string=html, url_fetcher=load_nothing)
            kind, answer = b"pdf", document.write_pdf(stylesheets=[pages])
        except Exception as error:
            kind, answer = b"trouble", f"{type(error).__name__}: {error}".encode()
        target.write(b"%s %d\n" % (kind, len(answer)))
        target.write(answer)
        target.flush()
