"""Opens every page of a site in headless Chromium and fails if a link or an image leads nowhere.

follow.py FOLDER: serves the folder to the browser, along with follow.html, which walks from
index.html over all links and sends back what it found."""
import contextlib
import functools
import http.server
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading

HERE = pathlib.Path(__file__).parent
PATIENCE = 600  # Seconds.


class Handler(http.server.SimpleHTTPRequestHandler):
    found = threading.Event()
    report = {}

    def do_GET(self):
        if self.path == "/follow-all-links":
            page = (HERE / "follow.html").read_bytes()
            self.send_response(200)
            self.send_header("Content-Type", "text/html; charset=utf-8")
            self.end_headers()
            self.wfile.write(page)
        else:
            with contextlib.suppress(BrokenPipeError):  # The browser went on to another page.
                super().do_GET()

    def do_POST(self):
        length = int(self.headers["Content-Length"])
        Handler.report = json.loads(self.rfile.read(length))
        self.send_response(204)
        self.end_headers()
        Handler.found.set()

    def log_message(self, *_):
        pass


def main():
    site = sys.argv[1]
    chromium = shutil.which("chromium")
    if not chromium:
        sys.exit("follow: chromium is not installed")
    handler = functools.partial(Handler, directory=site)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile:
        browser = subprocess.Popen(
            [chromium, "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic",
             "--no-first-run", "--disable-background-networking", "--disable-component-update",
             "--disable-sync", "--disable-dev-shm-usage", "--remote-debugging-port=0",
             f"--user-data-dir={profile}",
             f"http://127.0.0.1:{server.server_port}/follow-all-links"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        answered = Handler.found.wait(PATIENCE)
        browser.kill()
        browser.wait()
    if not answered:
        sys.exit(f"follow: no answer from the browser in {PATIENCE} s")
    report = Handler.report
    for problem in report["problems"]:
        print(problem)
    print(f"follow: {report['pages']} pages, {report['links']} links, {report['images']} images, "
          f"{len(report['problems'])} problems")
    sys.exit(1 if report["problems"] or report["pages"] < 2 else 0)


main()
