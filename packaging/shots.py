# SPDX-License-Identifier: MIT
"""Pictures of the program's windows, taken by playing a scenario through the real window, off screen."""
import os
import pathlib
import re
import subprocess

import cairo

ROOT = pathlib.Path(__file__).resolve().parent.parent
TWIPS_PER_PIXEL = 15
TITLE_HEIGHT = 22
SIDES = ("frmQSOnr", "frmContestCall", "frmB4")
STANDING = ("frmMain", *SIDES)
INK, BAR, WHITE = "1b2430", "3a4658", "ffffff"


def set_colour(context, rgb):
    context.set_source_rgb(*(int(rgb[i:i + 2], 16) / 255 for i in (0, 2, 4)))


class Shot:
    """A picture of the desktop and the windows in it. Each window is left, top, width, height in pixels of the picture."""

    def __init__(self, file, places, standing, captions):
        self.surface = cairo.ImageSurface.create_from_png(str(file))
        left = min(place[0] for place in [*places.values(), *standing.values()])
        top = min(place[1] for place in [*places.values(), *standing.values()])
        self.windows = {name: [(x - left) / TWIPS_PER_PIXEL, (y - top) / TWIPS_PER_PIXEL, w / TWIPS_PER_PIXEL, h / TWIPS_PER_PIXEL]
                        for name, (x, y, w, h) in places.items()}
        self.captions = captions


def take_shots(program, scenario, world, environment=()):
    """Plays the scenario and returns its shots. Before each shot the scenario must print the place of every window that is needed
    from that shot. The places of the main and side windows, which do not move, must be printed once before it."""
    told = subprocess.run([program, "--print", "--keep", world, scenario], check=True, stdout=subprocess.PIPE,
                          env={**os.environ, "QT_QPA_PLATFORM": "offscreen", **dict(environment)}).stdout.decode()
    shots, places, standing, captions = {}, {}, {}, {}
    for line in told.splitlines():
        place = re.match(r"> (frm\w+|Form\w+) (-?\d+) (-?\d+) (\d+) (\d+)$", line)
        caption = re.match(r'> (frm\w+|Form\w+) "(.*)" shown$', line)
        shot = re.match(r"shot (.*)", line)
        if place:
            places[place[1]] = tuple(map(int, place.groups()[1:]))
            if place[1] in STANDING:
                standing[place[1]] = places[place[1]]
        elif caption:
            captions[caption[1]] = caption[2]
        elif shot:
            shots[pathlib.Path(shot[1]).stem] = Shot(pathlib.Path(world, shot[1]), places, standing, captions)
            places = {}
    return shots


def draw_window(context, surface, area, x, y, title):
    """Draws an area of a picture under a title bar, with a line around both. Returns the place of the content."""
    left, top, w, h = area
    set_colour(context, BAR)
    context.rectangle(x, y, w, TITLE_HEIGHT)
    context.fill()
    context.select_font_face("DejaVu Sans", cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    context.set_font_size(13)
    set_colour(context, WHITE)
    context.save()
    context.rectangle(x, y, w, TITLE_HEIGHT)
    context.clip()
    context.move_to(x + 10, y + 16)
    context.show_text(title)
    context.restore()
    context.save()
    context.rectangle(x, y + TITLE_HEIGHT, w, h)
    context.clip()
    context.set_source_surface(surface, x - left, y + TITLE_HEIGHT - top)
    context.paint()
    context.restore()
    context.rectangle(x + 0.5, y + 0.5, w - 1, h + TITLE_HEIGHT - 1)
    set_colour(context, BAR)
    context.set_line_width(1)
    context.stroke()
    return x, y + TITLE_HEIGHT, w, h
