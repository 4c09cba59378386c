"""A Chromium without a window, driven through the pipe that it has for that."""

import base64
import json
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

NAMES = ("chromium", "chromium-browser", "google-chrome")
FLAGS = (
    "--headless=new", "--remote-debugging-pipe", "--disable-gpu", "--hide-scrollbars",
    "--no-first-run", "--disable-extensions", "--disable-background-networking",
    "--no-sandbox",  # root cannot have one, nor can a user in most containers; the pages are ours
    "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage", "--mute-audio",
)


def find_browser():
    found = [path for path in map(shutil.which, NAMES) if path]
    if not found:
        raise SystemExit("The report is tested in a browser, and there is no Chromium: install it "
                         "with scripts/setup, or configure with -DTERVIX_BROWSER_TESTS=OFF.")
    return found[0]


class Browser:
    """One tab. What a page throws, and what the browser complains of, is kept in complaints."""

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="tervix-browser-")
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        command = [find_browser(), *FLAGS, f"--user-data-dir={self.folder}", "about:blank"]

        def keep_pipes():
            first, second = os.dup(to_browser), os.dup(from_browser)
            os.dup2(first, 3)
            os.dup2(second, 4)

        self._process = subprocess.Popen(
            command, preexec_fn=keep_pipes, pass_fds=(3, 4, to_browser, from_browser),
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(to_browser)
        os.close(from_browser)
        self._rest = b""
        self._number = 0
        self._session = None
        self.complaints = []
        self._loaded = set()
        pages = [target for target in self.call("Target.getTargets")["targetInfos"]
                 if target["type"] == "page"]
        self._session = self.call("Target.attachToTarget", targetId=pages[0]["targetId"],
                                  flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")
        self.call("Page.setLifecycleEventsEnabled", enabled=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self._out)
        try:
            self._process.wait(10)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        os.close(self._in)
        shutil.rmtree(self.folder, ignore_errors=True)

    def call(self, method, **parameters):
        self._number += 1
        message = {"id": self._number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._out, json.dumps(message).encode() + b"\0")
        while True:
            answer = self._receive()
            if answer.get("id") == self._number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']}")
                return answer["result"]
            self._take_event(answer)

    def _receive(self):
        while b"\0" not in self._rest:
            piece = os.read(self._in, 1 << 16)
            if not piece:
                raise RuntimeError("the browser is gone")
            self._rest += piece
        message, self._rest = self._rest.split(b"\0", 1)
        return json.loads(message)

    def _take_event(self, event):
        method, told = event.get("method"), event.get("params", {})
        bad = ("error", "warning", "assert")
        if method == "Page.lifecycleEvent" and told["name"] == "load":
            self._loaded.add(told["loaderId"])
        elif method == "Runtime.exceptionThrown":
            self.complaints.append(json.dumps(told["exceptionDetails"])[:600])
        elif method == "Log.entryAdded" and told["entry"]["level"] in bad:
            self.complaints.append(told["entry"]["text"])
        elif method == "Runtime.consoleAPICalled" and told["type"] in bad:
            self.complaints.append(json.dumps(told["args"])[:600])
        elif method == "Network.requestWillBeSent":
            if told["documentURL"] != told["request"]["url"]:
                self.complaints.append("asked for " + told["request"]["url"])

    def look(self, width=1280, height=900, dark=False, media="screen"):
        """How wide the next page is, and what the reader prefers."""
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=width < 600)
        self.call("Emulation.setEmulatedMedia", media=media, features=[
            {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def load(self, page, wish=""):
        # Another anchor of the same page would not load it again.
        self.call("Page.navigate", url="about:blank")
        loading = self.call("Page.navigate", url=Path(page).resolve().as_uri() + wish)["loaderId"]
        while loading not in self._loaded:
            self._take_event(self._receive())
        self.settle()

    def settle(self):
        """Until what was observed and laid out is drawn."""
        self.value("new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done)))"
                   ".then(() => 0)")

    def value(self, expression):
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(json.dumps(answer["exceptionDetails"])[:600])
        return answer["result"].get("value")

    def press(self, key):
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=key)

    def point(self, x, y):
        self.call("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)

    def picture(self, whole=False):
        """What is seen, as a PNG."""
        return base64.b64decode(self.call("Page.captureScreenshot", format="png",
                                          captureBeyondViewport=whole)["data"])
