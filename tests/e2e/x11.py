#!/usr/bin/env python3
"""Does for the window tests what xdotool cannot, using libX11.

    x11.py picture X Y WIDTH HEIGHT   prints "black", or a hash of the pixels of that part of the display, without the
                                      pointer.
    x11.py still X Y WIDTH HEIGHT     waits until that part is not black and does not change for a second, then prints
                                      the same. Ends with status 1 after 20 seconds.
    x11.py close WINDOW               asks a window to close, as a window manager does.
"""
import ctypes
import hashlib
import sys
import time

x11 = ctypes.CDLL("libX11.so.6")
ALL_PLANES, Z_PIXMAP, CLIENT_MESSAGE = ctypes.c_ulong(-1), 2, 33


class XImage(ctypes.Structure): # only the first fields
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")] + [
        ("data", ctypes.c_void_p)] + [(name, ctypes.c_int) for name in (
            "byte_order", "bitmap_unit", "bitmap_bit_order", "bitmap_pad", "depth", "bytes_per_line", "bits_per_pixel")]


class XClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5),
                ("rest_of_xevent", ctypes.c_long * 24)]


x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.argtypes, x11.XDefaultRootWindow.restype = [ctypes.c_void_p], ctypes.c_ulong
x11.XInternAtom.argtypes, x11.XInternAtom.restype = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int], ctypes.c_ulong
x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint, ctypes.c_uint,
                          ctypes.c_ulong, ctypes.c_int]
x11.XGetImage.restype = ctypes.POINTER(XImage)
x11.XFree.argtypes = [ctypes.c_void_p]
x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
x11.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]


def digest_of(display, x, y, width, height):
    image = x11.XGetImage(display, x11.XDefaultRootWindow(display), x, y, width, height, ALL_PLANES, Z_PIXMAP)
    if not image:
        sys.exit("cannot read the display")
    pixels = ctypes.string_at(image.contents.data, image.contents.bytes_per_line * height)
    x11.XFree(image.contents.data)
    x11.XFree(image)
    return hashlib.md5(pixels).hexdigest() if any(pixels) else "black"


def picture(display, *place):
    print(digest_of(display, *place))


def still(display, *place):
    seen, same = None, 0
    for _ in range(80):
        before, seen = seen, digest_of(display, *place)
        same = same + 1 if seen == before and seen != "black" else 0
        if same == 4:
            print(seen)
            return
        time.sleep(0.25)
    sys.exit("the picture does not stop changing")


def close(display, window):
    event = XClientMessage(type=CLIENT_MESSAGE, window=window, format=32,
                           message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", 0))
    event.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
    x11.XSendEvent(display, window, 0, 0, ctypes.byref(event))
    x11.XSync(display, 0)


command = {"picture": picture, "still": still, "close": close}[sys.argv[1]]
to = x11.XOpenDisplay(None)
if not to:
    sys.exit("no display")
command(to, *map(int, sys.argv[2:]))
