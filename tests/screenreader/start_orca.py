"""Starts Debian's Orca as it is installed, with a few differences for tests.

- Its speech server cannot be imported: what it would say stands in the debug file alone.
- Another Orca of the same user, in another session, is none of its business.
- It neither names the keys that are pressed, so that a silent key is silent, nor uses braille, sound
  or the mouse.
"""

import importlib.machinery
import importlib.util
import sys

for module in ("speechd", "brlapi", "louis"):
    sys.modules[module] = None

loader = importlib.machinery.SourceFileLoader("orca_start", "/usr/bin/orca")
orca_start = importlib.util.module_from_spec(importlib.util.spec_from_loader("orca_start", loader))
loader.exec_module(orca_start)
orca_start.otherOrcas = lambda: []
orca_start.open = lambda path, mode: open(path, mode, buffering=1)  # Each line at once.

from orca import settings  # noqa: E402

settings.enableKeyEcho = False
settings.enableBraille = False
settings.enableSound = False
settings.enablePositionSpeaking = True  # "3 of 12"

sys.exit(orca_start.main())
