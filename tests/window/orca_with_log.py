"""Orca, as its own start script starts it, for one screen only: "python3 orca_with_log.py LOG".

It says nothing aloud; the debug log, in which it tells all that it speaks and when, can be read while it runs. Other
Orcas on the machine are left alone, and no settings of the person who runs it are read.
"""

import sys

try:
    from gi.repository import Gio, GLib
    from orca import debug, orca, settings
except ImportError as missing:
    sys.exit(f"The screen reader Orca is not installed: {missing}")

debug.debugLevel = debug.LEVEL_ALL
debug.eventDebugLevel = debug.LEVEL_OFF
debug.debugFile = open(sys.argv[1], "w", buffering=1, encoding="utf-8")  # line by line
settings.speechServerFactory = ""
settings.speechFactoryModules = []

# What the desktop's own switch for the screen reader sets: programs look at it when they start.
Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
    "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
    GLib.Variant("(ssv)", ("org.a11y.Status", "ScreenReaderEnabled", GLib.Variant("b", True))),
    None, Gio.DBusCallFlags.NONE, -1, None)

orca.getSettingsManager().activate(None, {"enableKeyEcho": False, "enableBraille": False, "enableSound": False})
sys.exit(orca.main())
