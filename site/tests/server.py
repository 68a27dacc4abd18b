"""The site on a web server of a test's own: nginx with the configuration that is installed, a
certificate of its own, and a port that is free."""

import contextlib
import pathlib
import re
import shutil
import socket
import subprocess
import tempfile
import time


def _free_port():
    with socket.socket() as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


def _replace(text, pattern, by, count=1):
    text, found = re.subn(pattern, lambda _: by, text)
    if found != count:
        raise AssertionError(f"{pattern} stands {found} times in the configuration, not {count}")
    return text


class Server:
    """Use with `with`. `folder` is the built site with its nginx.conf beside it."""

    def __init__(self, folder, host):
        self.source, self.host = pathlib.Path(folder).resolve(), host

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orravane-site-"))
        self.folder.chmod(0o755)
        self.port, self.plain_port = _free_port(), _free_port()
        # What a server's administrator gets: the installed files, here below another root.
        shutil.copytree(self.source / "root", self.folder / "root")
        self._certificate()
        # Only where it listens and where its files are differs from the real configuration.
        text = (self.source / "nginx.conf").read_text()
        text = _replace(text, r"listen 443 ssl", f"listen 127.0.0.1:{self.port} ssl")
        text = _replace(text, r"listen 80;", f"listen 127.0.0.1:{self.plain_port};")
        text = _replace(text, r"listen \[::\].*;", "", 2)
        text = _replace(text, r"(?m)^    root [^;]+;", f"root {self.folder}/root;")
        text = _replace(text, r"/etc/letsencrypt/live/[^/]+/fullchain.pem",
                        f"{self.folder}/certificate.pem")
        text = _replace(text, r"/etc/letsencrypt/live/[^/]+/privkey.pem", f"{self.folder}/key.pem")
        (self.folder / "site.conf").write_text(text)
        (self.folder / "nginx.conf").write_text(f"""
daemon off;
pid {self.folder}/pid;
error_log {self.folder}/error.log warn;
events {{ }}
http {{
    include /etc/nginx/mime.types;
    default_type application/octet-stream;
    access_log {self.folder}/access.log;
    client_body_temp_path {self.folder}/temporary;
    proxy_temp_path {self.folder}/temporary;
    fastcgi_temp_path {self.folder}/temporary;
    uwsgi_temp_path {self.folder}/temporary;
    scgi_temp_path {self.folder}/temporary;
    include {self.folder}/site.conf;
}}
""")
        self.process = subprocess.Popen(
            ["nginx", "-p", self.folder, "-e", self.folder / "error.log", "-c",
             self.folder / "nginx.conf"], stdin=subprocess.DEVNULL)
        end = time.monotonic() + 10
        while True:
            with contextlib.suppress(OSError):
                socket.create_connection(("127.0.0.1", self.port), 1).close()
                return self
            if self.process.poll() is not None or time.monotonic() > end:
                self.__exit__()
                raise AssertionError("nginx does not come up")
            time.sleep(0.05)

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(10)
        shutil.rmtree(self.folder, ignore_errors=True)

    def _certificate(self):
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt",
                        "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2",
                        "-subj", f"/CN={self.host}", "-addext", f"subjectAltName=DNS:{self.host}",
                        "-keyout", self.folder / "key.pem",
                        "-out", self.folder / "certificate.pem"], check=True, capture_output=True)
        # The hash by which a browser is told to trust this one key.
        key = subprocess.run(["openssl", "x509", "-in", self.folder / "certificate.pem",
                              "-pubkey", "-noout"], check=True, capture_output=True).stdout
        der = subprocess.run(["openssl", "pkey", "-pubin", "-outform", "der"], input=key,
                             check=True, capture_output=True).stdout
        digest = subprocess.run(["openssl", "dgst", "-sha256", "-binary"], input=der, check=True,
                                capture_output=True).stdout
        self.key_hash = subprocess.run(["openssl", "base64"], input=digest, check=True,
                                       capture_output=True).stdout.decode().strip()

    def errors(self):
        return (self.folder / "error.log").read_text()

    def curl(self, path, *options, scheme="https"):
        """What curl says, which checks the certificate and the name in it."""
        port = {"https": f"443:127.0.0.1:{self.port}", "http": f"80:127.0.0.1:{self.plain_port}"}
        return subprocess.run(
            ["curl", "--silent", "--show-error", "--cacert", self.folder / "certificate.pem",
             "--connect-to", f"{self.host}:{port[scheme]}", *options,
             f"{scheme}://{self.host}{path}"], check=True, capture_output=True).stdout

    def browser_options(self, profile):
        """What makes Chromium take this server for the site, and nothing else for anything."""
        return ["--no-sandbox", "--no-first-run", "--no-default-browser-check", "--disable-sync",
                "--disable-background-networking", "--disable-component-update",
                f"--user-data-dir={profile}", "--disable-gpu", "--password-store=basic",
                f"--host-resolver-rules=MAP {self.host}:443 127.0.0.1:{self.port}, "
                "MAP * ~NOTFOUND, EXCLUDE 127.0.0.1",
                f"--ignore-certificate-errors-spki-list={self.key_hash}"]
