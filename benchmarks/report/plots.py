"""Plots with logarithmic axes, as SVG."""

import math

WIDTH, HEIGHT = 760, 440
LEFT, RIGHT, TOP, BOTTOM = 70, 170, 40, 50
# Colours that colour-blind readers can distinguish (M. Okabe and K. Ito).
COLOURS = ["#d55e00", "#0072b2", "#009e73", "#cc79a7", "#e69f00", "#56b4e9", "#000000", "#999999",
           "#7a5c00"]


def short(number):
    """Formats 1000 as "1 000" and 0.05 as "0.05"."""
    return f"{number:,.0f}".replace(",", " ") if number >= 1 else f"{number:g}"


class Axis:
    """A decade-aligned logarithmic axis that maps values to pixels."""

    def __init__(self, values, begin, end):
        self.low = math.floor(math.log10(min(values)))
        self.high = max(math.ceil(math.log10(max(values))), self.low + 1)
        self.begin, self.end = begin, end

    def at(self, value):
        share = (math.log10(value) - self.low) / (self.high - self.low)
        return self.begin + share * (self.end - self.begin)

    def decades(self):
        return [10.0 ** power for power in range(self.low, self.high + 1)]


def spread(positions, distance):
    """Returns the label positions moved apart by at least the distance, in the same order."""
    order = sorted(range(len(positions)), key=lambda i: positions[i])
    placed = list(positions)
    for before, this in zip(order, order[1:]):
        placed[this] = max(placed[this], placed[before] + distance)
    overshoot = placed[order[-1]] - (HEIGHT - BOTTOM) if order else 0
    if overshoot > 0:
        limit = HEIGHT - BOTTOM
        for i in reversed(order):
            placed[i] = min(placed[i], limit)
            limit = placed[i] - distance
    return placed


def log_log(title, x_label, y_label, series):
    """Returns the SVG text. series: {name: [(x, y), ...]}; the first line is drawn thicker."""
    points = [point for line in series.values() for point in line]
    x_axis = Axis([x for x, _ in points], LEFT, WIDTH - RIGHT)
    y_axis = Axis([y for _, y in points], HEIGHT - BOTTOM, TOP)
    svg = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
           f'font-family="sans-serif" font-size="12">',
           f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
           f'<text x="{LEFT}" y="22" font-size="15">{title}</text>']
    for x in x_axis.decades():
        svg.append(f'<line x1="{x_axis.at(x):.1f}" y1="{TOP}" x2="{x_axis.at(x):.1f}" '
                   f'y2="{HEIGHT - BOTTOM}" stroke="#e0e0e0"/>')
        svg.append(f'<text x="{x_axis.at(x):.1f}" y="{HEIGHT - BOTTOM + 18}" '
                   f'text-anchor="middle">{short(x)}</text>')
    for y in y_axis.decades():
        svg.append(f'<line x1="{LEFT}" y1="{y_axis.at(y):.1f}" x2="{WIDTH - RIGHT}" '
                   f'y2="{y_axis.at(y):.1f}" stroke="#e0e0e0"/>')
        svg.append(f'<text x="{LEFT - 6}" y="{y_axis.at(y) + 4:.1f}" '
                   f'text-anchor="end">{short(y)}</text>')
    svg.append(f'<text x="{(LEFT + WIDTH - RIGHT) / 2:.0f}" y="{HEIGHT - 12}" '
               f'text-anchor="middle">{x_label}</text>')
    svg.append(f'<text transform="translate(16 {(TOP + HEIGHT - BOTTOM) / 2:.0f}) rotate(-90)" '
               f'text-anchor="middle">{y_label}</text>')
    labels = spread([y_axis.at(line[-1][1]) for line in series.values()], 15)
    for index, (name, line) in enumerate(series.items()):
        colour = COLOURS[index % len(COLOURS)]
        path = " ".join(f"{x_axis.at(x):.1f},{y_axis.at(y):.1f}" for x, y in line)
        width = 3 if index == 0 else 1.5
        svg.append(f'<polyline points="{path}" fill="none" stroke="{colour}" '
                   f'stroke-width="{width}"/>')
        for x, y in line:
            svg.append(f'<circle cx="{x_axis.at(x):.1f}" cy="{y_axis.at(y):.1f}" r="3" '
                       f'fill="{colour}"/>')
        svg.append(f'<text x="{WIDTH - RIGHT + 8}" y="{labels[index] + 4:.1f}" '
                   f'fill="{colour}">{name}</text>')
    svg.append("</svg>")
    return "\n".join(svg) + "\n"
