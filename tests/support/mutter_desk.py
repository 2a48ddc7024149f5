#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A desk of GNOME's without a picture, on the bus at the address that is its argument: the
compositor, its night light and the colour management service, with every answer that real ones give.

The tests change it by lines of Python for `Do` on the object /test, which returns their value.
"""
import struct
import sys

import dbus
import dbus.bus
import dbus.lowlevel
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

CONFIG = "org.gnome.Mutter.DisplayConfig"
COLOR = "org.gnome.Mutter.ColorManager"
CALIBRATION = COLOR + ".Calibration"
COLORD = "org.freedesktop.ColorManager"
NIGHT = "org.gnome.SettingsDaemon.Color"
PROPERTIES = "org.freedesktop.DBus.Properties"
EMPTY = dbus.Dictionary(signature="sv")
STALE = "The requested configuration is based on stale information"


class Monitor:
    def __init__(self, x, size):
        self.x, self.size = x, size
        self.refusal, self.refusals = "", 0
        self.profile, self.sets = "", 0
        self.release()

    def release(self):
        self.holder = self.session = ""
        self.ramp = b""  # The compositor's own.

    def refuse(self):
        if self.refusals != 0:
            self.refusals -= self.refusals > 0
            raise dbus.DBusException(self.refusal, name="org.freedesktop.DBus.Error.AccessDenied")

    def set(self, *channels):
        if any(len(channel) != self.size for channel in channels):
            raise dbus.DBusException("wrong length")
        self.sets += 1
        self.ramp = b"".join(struct.pack(f">{len(each)}H", *each) for each in channels)


class Desk(dbus.service.FallbackObject):
    def __init__(self, bus):
        super().__init__(bus, "/")
        self.monitors, self.serial, self.count, self.failures = {}, 1, 0, 0
        self.night = dbus.Dictionary(
            {"Temperature": dbus.UInt32(4000), "NightLightActive": False}, signature="sv")
        bus.add_signal_receiver(self.name_left, "NameOwnerChanged", arg2="")

    def name_left(self, name, *_):
        for monitor in self.monitors.values():
            if monitor.holder == name:
                monitor.release()

    def with_session(self, path):
        for monitor in self.monitors.values():
            if monitor.session == path:
                return monitor
        raise dbus.DBusException("There is no such session")

    def with_crtc(self, serial, crtc):
        if serial != self.serial:
            raise dbus.DBusException(STALE, name="org.freedesktop.DBus.Error.AccessDenied")
        return list(self.monitors.values())[crtc]

    def say(self, path, interface, name, signature="", *arguments):
        signal = dbus.lowlevel.SignalMessage(path, interface, name)
        signal.append(signature=signature, *arguments)
        connection.send_message(signal)

    # What the tests do.
    @dbus.service.method("org.example.Test", "s", "s")
    def Do(self, line):
        return str(eval(line, {"desk": self}))

    def plug(self, name, x, size=256):
        self.monitors[name] = Monitor(x, size)
        self.change()

    def unplug(self, name):
        del self.monitors[name]
        self.change()

    def change(self):
        self.serial += 1
        self.say("/org/gnome/Mutter/DisplayConfig", CONFIG, "MonitorsChanged")

    def refuse(self, name, refusal, times=-1):
        self.monitors[name].refusal, self.monitors[name].refusals = refusal, times

    def stop_sessions(self):
        for monitor in self.monitors.values():
            self.say(monitor.session, CALIBRATION, "Stopped")
            monitor.release()

    def set_profile(self, name, file):
        self.monitors[name].profile = file
        self.say("/colord", COLORD, "DeviceChanged", "o", "/")

    def set_night(self, is_active, kelvin):
        self.night.update({"Temperature": dbus.UInt32(kelvin), "NightLightActive": is_active})
        self.say("/org/gnome/SettingsDaemon/Color", PROPERTIES, "PropertiesChanged", "sa{sv}as",
                 NIGHT, self.night, [])

    # The compositor.
    @dbus.service.method(CONFIG, "", "ua((ssss)a(siiddada{sv})a{sv})a(iiduba(ssss)a{sv})a{sv}")
    def GetCurrentState(self):
        if self.failures > 0:
            self.failures -= 1
            raise dbus.DBusException("There is no such state")
        modes = [("small", 640, 480, 60.0, 1.0, [], EMPTY),
                 ("large", 3840, 2160, 60.0, 2.0, [1.0, 2.0], {"is-current": True})]
        spec = {name: (name, "GSM", "Model", "0x00000007") for name in self.monitors}
        return (self.serial, [(spec[name], modes, EMPTY) for name in self.monitors],
                [(each.x, 0, 2.0, 0, each.x == 0, [spec[name]], EMPTY)
                 for name, each in self.monitors.items()], EMPTY)

    @dbus.service.method(CONFIG, "", "ua(uxiiiiiuaua{sv})a(uxiausauaua{sv})")
    def GetResources(self):
        numbers = range(len(self.monitors))
        return (self.serial, [(n, 0, 0, 0, 1, 1, 0, 0, [0], EMPTY) for n in numbers],
                [(n, 0, n, [n], name, [], [], EMPTY) for n, name in zip(numbers, self.monitors)])

    @dbus.service.method(CONFIG, "uu", "aqaqaq")
    def GetCrtcGamma(self, serial, crtc):
        return [dbus.Array([7] * self.with_crtc(serial, crtc).size, "q")] * 3

    @dbus.service.method(CONFIG, "uuaqaqaq", "")
    def SetCrtcGamma(self, serial, crtc, red, green, blue):
        monitor = self.with_crtc(serial, crtc)
        monitor.refuse()
        monitor.set(red, green, blue)

    @dbus.service.method(COLOR, "s", "o", sender_keyword="sender")
    def CalibrateMonitor(self, name, sender):
        monitor = self.monitors[name]
        monitor.refuse()
        if monitor.holder:
            raise dbus.DBusException("Monitor is already being calibrated")
        self.count += 1
        monitor.holder, monitor.session = sender, f"/session/{self.count}"
        return monitor.session

    @dbus.service.method(CALIBRATION, "aqaqaq", "", path_keyword="path")
    def SetCrtcGammaLut(self, red, green, blue, path):
        self.with_session(path).set(red, green, blue)

    @dbus.service.method(CALIBRATION, "", "", path_keyword="path")
    def Stop(self, path):
        self.with_session(path).release()

    # The others.
    @dbus.service.method(COLORD, "ss", "o")
    def FindDeviceByProperty(self, name, value):
        if name != "XRANDR_name" or not self.monitors[value].profile:
            raise dbus.DBusException("There is no such device")
        return "/device/" + value.encode().hex()

    @dbus.service.method(PROPERTIES, "ss", "v", path_keyword="path")
    def Get(self, _, name, path):
        if name == "GammaLutSize":
            return dbus.UInt32(self.with_session(path).size)
        if name == "Profiles":
            return dbus.Array(["/profile/" + path.split("/")[2], "/other"], "o")
        return self.monitors[bytes.fromhex(path.split("/")[2]).decode()].profile

    @dbus.service.method(PROPERTIES, "s", "a{sv}")
    def GetAll(self, _):
        return self.night


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
connection = dbus.bus.BusConnection(sys.argv[1])
service = Desk(connection)
for each in [CONFIG, COLORD, NIGHT] + ([COLOR] if sys.argv[2] == "sessions" else []):
    connection.request_name(each)
print("ready", flush=True)
GLib.MainLoop().run()
