#!/usr/bin/python3
"""Presses the keys of a script on a page in Debian's Firefox, and compares what Orca says to them.

    browse.py SCRIPT --package FOLDER --folder FOLDER [--write]

Scripts are those of listen.py; `> (start)` shows the page. What Firefox says of itself until the
page is there belongs to no key. Without Firefox or the package it is left out, with the code 77.
"""

import functools
import http.server
import shutil
import sys
import threading
from pathlib import Path

import listen
from session import wait_until

FIREFOX = "firefox-esr"
LEFT_OUT = 77
# Accessibility by the bus, and no page, dialog or connection of the browser's own.
PREFERENCES = """
user_pref("accessibility.force_disabled", -1);
user_pref("app.normandy.enabled", false);
user_pref("app.update.enabled", false);
user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.newtabpage.enabled", false);
user_pref("browser.safebrowsing.update.enabled", false);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("browser.startup.homepage_override.mstone", "ignore");
user_pref("browser.startup.page", 0);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("datareporting.policy.dataSubmissionPolicyBypassNotification", true);
user_pref("extensions.getAddons.cache.enabled", false);
user_pref("network.captive-portal-service.enabled", false);
user_pref("network.connectivity-service.enabled", false);
user_pref("services.settings.server", "data:,");
user_pref("toolkit.telemetry.reportingpolicy.firstRun", false);
"""
ENVIRONMENT = {"NO_AT_BRIDGE": "0", "GTK_A11Y": "atspi", "GNOME_ACCESSIBILITY": "1", "MOZ_ENABLE_WAYLAND": "0"}
TITLE = "Workout"
PAGE = f"""<!doctype html><html lang="{{language}}"><head><meta charset="utf-8"><title>{TITLE}</title>
<script type="module" src="gxuipickers.js"></script></head><body>
<label for="way">Way</label><gx-distance-picker id="way" value="5300"></gx-distance-picker>
<gx-duration-picker value="5100000"></gx-duration-picker>
<gx-weight-picker value="72.5" unit-selectable></gx-weight-picker>
</body></html>
"""


class Handler(http.server.SimpleHTTPRequestHandler):
    page = ""

    def do_GET(self):
        if self.path != "/":
            return super().do_GET()
        body = self.page.encode()
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)
        return None

    def log_message(self, *_):
        pass


class PageListener(listen.Listener):
    """A page in Firefox with Orca beside it."""

    def __init__(self, session, address, locale):
        super().__init__(session, "", locale)
        self.address = address

    def start(self):
        self.start_orca()
        profile = self.session.folder / "home" / "profile"
        profile.mkdir()
        (profile / "user.js").write_text(PREFERENCES)
        self.program = self.session.start("firefox", [FIREFOX, "--no-remote", "--profile", str(profile), "--kiosk", self.address],
                                          environment={**ENVIRONMENT, "LANGUAGE": self.locale})
        wait_until(lambda: any(f"Finished loading {TITLE}" in line for line in listen.utterances(self.text())),
                   "what Orca says to the page", seconds=60)
        self.heard = next(i for i, line in enumerate(listen.utterances(self.text())) if f"Finished loading {TITLE}" in line)


def main():
    parser = listen.parser_of(__doc__, "such as scripts/web-pickers.en.txt; its name tells the language")
    parser.add_argument("--package", required=True, type=Path, help="what scripts/web build makes")
    arguments = parser.parse_args()
    if not shutil.which(FIREFOX) or not (arguments.package / "gxuipickers.js").exists():
        print(f"LEFT OUT: {FIREFOX} is not installed, or {arguments.package} is not there (scripts/web build)")
        return LEFT_OUT
    Handler.page = PAGE.format(language=listen.locale_of(arguments))
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Handler, directory=arguments.package))
    threading.Thread(target=server.serve_forever, daemon=True).start()
    address = f"http://127.0.0.1:{server.server_port}/"
    return listen.compare(arguments, lambda session, locale: PageListener(session, address, locale))


if __name__ == "__main__":
    sys.exit(main())
