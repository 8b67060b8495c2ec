#!/usr/bin/env python3
"""Renders the game's hand-written SVG pictures to the PNGs the program loads
(the Qt build here has no SVG reader). Uses the system's librsvg and cairo.

    assets/games/nabes/render.py      (from anywhere)
"""
import ctypes
import pathlib
import re

rsvg = ctypes.CDLL("librsvg-2.so.2")
cairo = ctypes.CDLL("libcairo.so.2")
gobject = ctypes.CDLL("libgobject-2.0.so.0")

rsvg.rsvg_handle_new_from_file.restype = ctypes.c_void_p
rsvg.rsvg_handle_new_from_file.argtypes = [ctypes.c_char_p, ctypes.c_void_p]
rsvg.rsvg_handle_render_cairo.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
cairo.cairo_image_surface_create.restype = ctypes.c_void_p
cairo.cairo_image_surface_create.argtypes = [ctypes.c_int, ctypes.c_int, ctypes.c_int]
cairo.cairo_create.restype = ctypes.c_void_p
cairo.cairo_create.argtypes = [ctypes.c_void_p]
cairo.cairo_scale.argtypes = [ctypes.c_void_p, ctypes.c_double, ctypes.c_double]
cairo.cairo_surface_write_to_png.argtypes = [ctypes.c_void_p, ctypes.c_char_p]
cairo.cairo_destroy.argtypes = [ctypes.c_void_p]
cairo.cairo_surface_destroy.argtypes = [ctypes.c_void_p]
gobject.g_object_unref.argtypes = [ctypes.c_void_p]

FORMAT_ARGB32 = 0
SCALE = 2  # small pictures are drawn at twice their on-screen size

here = pathlib.Path(__file__).resolve().parent
for svg in sorted(here.glob("*.svg")):
    text = svg.read_text()
    width, height = (float(v) for v in re.search(r'viewBox="0 0 ([\d.]+) ([\d.]+)"', text).groups())
    scale = SCALE if width <= 200 else 1
    out_w, out_h = int(width * scale), int(height * scale)
    handle = rsvg.rsvg_handle_new_from_file(str(svg).encode(), None)
    if not handle:
        raise SystemExit(f"cannot read {svg.name}")
    surface = cairo.cairo_image_surface_create(FORMAT_ARGB32, out_w, out_h)
    cr = cairo.cairo_create(surface)
    cairo.cairo_scale(cr, scale, scale)
    rsvg.rsvg_handle_render_cairo(handle, cr)
    cairo.cairo_surface_write_to_png(surface, str(svg.with_suffix(".png")).encode())
    cairo.cairo_destroy(cr)
    cairo.cairo_surface_destroy(surface)
    gobject.g_object_unref(handle)
    print(svg.with_suffix(".png").name, out_w, out_h)
