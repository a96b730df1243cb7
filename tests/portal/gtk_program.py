#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""gtk_program.py PRINTER PAGES [SETTING=VALUE...]: a GTK program that opens the print dialog and prints pages with a
number on each. Prints the outcome: APPLY, CANCEL or ERROR."""
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk

Gtk.init([])
settings = Gtk.PrintSettings()
settings.set_printer(sys.argv[1])
for word in sys.argv[3:]:
    settings.set(*word.split("=", 1))
window = Gtk.Window(title="A program")
window.show()
operation = Gtk.PrintOperation(n_pages=int(sys.argv[2]), print_settings=settings)


def draw(_operation, context, page):
    cairo = context.get_cairo_context()
    cairo.select_font_face("DejaVu Sans")
    cairo.set_font_size(24)
    cairo.move_to(72, 72)
    cairo.show_text("Page %d" % (page + 1))


operation.connect("draw-page", draw)
result = operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window)
print(result.value_nick.upper())
