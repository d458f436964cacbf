"""What the window manager writes on windows, read with the X library that every window program brings."""
import ctypes

ANY_TYPE = 0
LONGS = 4096  # more windows than a screen has
_X = ctypes.CDLL("libX11.so.6")
_X.XOpenDisplay.restype = ctypes.c_void_p
_X.XOpenDisplay.argtypes = [ctypes.c_char_p]
_X.XCloseDisplay.argtypes = [ctypes.c_void_p]
_X.XFree.argtypes = [ctypes.c_void_p]
_X.XDefaultRootWindow.restype = ctypes.c_ulong
_X.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
_X.XInternAtom.restype = ctypes.c_ulong
_X.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
_X.XGetWindowProperty.argtypes = [
    ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_long, ctypes.c_long, ctypes.c_int, ctypes.c_ulong,
    ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.c_int), ctypes.POINTER(ctypes.c_ulong),
    ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.POINTER(ctypes.c_ulong))]

# A window may go away between two questions: what it says then is nothing, and no reason to end.
_HANDLER = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
_X.XSetErrorHandler(_HANDLER)


def _read(connection, window, name):
    kind, size, count, rest = ctypes.c_ulong(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong()
    data = ctypes.POINTER(ctypes.c_ulong)()
    failed = _X.XGetWindowProperty(
        connection, window, _X.XInternAtom(connection, name.encode(), False), 0, LONGS, False, ANY_TYPE,
        ctypes.byref(kind), ctypes.byref(size), ctypes.byref(count), ctypes.byref(rest), ctypes.byref(data))
    values = data[:count.value] if not failed and size.value == 32 else []
    if data:
        _X.XFree(data)
    return values


def numbers(display, name, window=None):
    """The windows, atoms or numbers in the property `name` of a window, the root's where none is given;
    empty where there is no such property, window or display."""
    # A connection a question: one that outlives its display would end this program.
    connection = _X.XOpenDisplay(display.encode())
    if not connection:
        return []
    try:
        return _read(connection, window or _X.XDefaultRootWindow(connection), name)
    finally:
        _X.XCloseDisplay(connection)
