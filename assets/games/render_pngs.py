#!/usr/bin/env python3
"""Renders the hand-drawn SVG pictures of the games to the PNG files that the
program loads (the Qt build has no SVG module). Uses the system's librsvg and cairo.

    python3 assets/games/render_pngs.py
"""
import ctypes
import pathlib

rsvg = ctypes.CDLL("librsvg-2.so.2")
cairo = ctypes.CDLL("libcairo.so.2")


class Dimensions(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int),
                ("em", ctypes.c_double), ("ex", ctypes.c_double)]


rsvg.rsvg_handle_new_from_file.restype = ctypes.c_void_p
rsvg.rsvg_handle_new_from_file.argtypes = [ctypes.c_char_p, ctypes.c_void_p]
rsvg.rsvg_handle_get_dimensions.argtypes = [ctypes.c_void_p, ctypes.POINTER(Dimensions)]
rsvg.rsvg_handle_render_cairo.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
cairo.cairo_image_surface_create.restype = ctypes.c_void_p
cairo.cairo_create.restype = ctypes.c_void_p
cairo.cairo_create.argtypes = [ctypes.c_void_p]
cairo.cairo_destroy.argtypes = [ctypes.c_void_p]
cairo.cairo_surface_write_to_png.argtypes = [ctypes.c_void_p, ctypes.c_char_p]
cairo.cairo_surface_destroy.argtypes = [ctypes.c_void_p]


def render(svg: pathlib.Path) -> None:
    handle = rsvg.rsvg_handle_new_from_file(str(svg).encode(), None)
    if not handle:
        raise SystemExit(f"cannot read {svg}")
    size = Dimensions()
    rsvg.rsvg_handle_get_dimensions(handle, ctypes.byref(size))
    surface = cairo.cairo_image_surface_create(0, size.width, size.height)  # ARGB32
    context = cairo.cairo_create(surface)
    rsvg.rsvg_handle_render_cairo(handle, context)
    cairo.cairo_destroy(context)
    if cairo.cairo_surface_write_to_png(surface, str(svg.with_suffix(".png")).encode()) != 0:
        raise SystemExit(f"cannot write {svg.with_suffix('.png')}")
    cairo.cairo_surface_destroy(surface)


for picture in sorted(pathlib.Path(__file__).resolve().parent.glob("*.svg")):
    render(picture)
