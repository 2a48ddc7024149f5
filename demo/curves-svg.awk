# SPDX-License-Identifier: MIT
# Draws ramps, one panel for each display. Reads lines between tabs: "title" and a display's name,
# then "was" or "now", index, red, green, blue, from 0 to 65535.
BEGIN {
    FS = "\t"
    size = 300          # of a plot, in pixels
    left = 64           # from the edge to the first plot
    gap = 56            # between two plots
    top = 104
    split("#E5534B #57AB5A #539BF5", colour, " ")
    split("Red Green Blue", channel, " ")
}
$1 == "title" {
    title[++panels] = $2
}
$1 == "was" || $1 == "now" {
    count[panels, $1]++
    for (c = 1; c <= 3; ++c)
        level[panels, $1, c, $2] = $(c + 2)
}
END {
    width = left + panels * size + (panels - 1) * gap + 40
    height = top + size + 108
    head()
    for (p = 1; p <= panels; ++p)
        panel(p, left + (p - 1) * (size + gap))
    legend(top + size + 84)
    print "</svg>"
}

function head() {
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\"", width, height
    printf " viewBox=\"0 0 %d %d\"", width, height
    print " font-family=\"Inter, 'DejaVu Sans', sans-serif\">"
    print "<title>Gamma ramps before and after</title>"
    print "<rect width=\"100%\" height=\"100%\" fill=\"#1E1E1E\"/>"
    text(left, 44, 20, "#E6E6E6", "start", "Gamma ramps, as read back from the X server", 600)
}

function text(x, y, points, fill, anchor, words, weight) {
    gsub(/&/, "\\&amp;", words)
    gsub(/</, "\\&lt;", words)
    printf "<text x=\"%s\" y=\"%s\" font-size=\"%d\" fill=\"%s\" text-anchor=\"%s\"", \
        x, y, points, fill, anchor
    printf " font-weight=\"%d\">%s</text>\n", weight ? weight : 400, words
}

function line(x1, y1, x2, y2, stroke) {
    printf "<line x1=\"%s\" y1=\"%s\" x2=\"%s\" y2=\"%s\" stroke=\"%s\"/>\n", x1, y1, x2, y2, stroke
}

function panel(p, x,    step, at, label) {
    text(x, top - 18, 15, "#E6E6E6", "start", title[p], 600)
    printf "<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"#252526\"/>\n", \
        x, top, size, size
    for (step = 0; step <= 4; ++step) {
        at = step * size / 4
        line(x + at, top, x + at, top + size, step % 4 ? "#383838" : "#555555")
        line(x, top + at, x + size, top + at, step % 4 ? "#383838" : "#555555")
        if (step % 2 == 0) {
            label = step == 2 ? "0.5" : step / 4
            text(x + at, top + size + 20, 12, "#A8A8A8", "middle", label)
            text(x - 10, top + size - at + 4, 12, "#A8A8A8", "end", label)
        }
    }
    text(x + size / 2, top + size + 42, 12, "#A8A8A8", "middle", "input")
    if (p == 1)
        printf "<text transform=\"translate(%d %d) rotate(-90)\" font-size=\"12\" fill=\"#A8A8A8\"" \
            " text-anchor=\"middle\">output</text>\n", x - 42, top + size / 2
    curves(p, x)
}

# The old curves lie on top, dotted, as they would hide beneath a channel that stayed as it was. One
# neutral line stands for all three where they are the same.
function curves(p, x,    c, dots) {
    for (c = 1; c <= 3; ++c)
        curve(p, x, "now", colour[c], c, "stroke-width=\"2.5\"" overlap(p, c))
    dots = "stroke-linecap=\"round\" stroke-width=\"1.8\" stroke-dasharray=\"0.1 6\""
    if (same(p, "was", 1, 2) && same(p, "was", 1, 3)) {
        curve(p, x, "was", "#E6E6E6", 1, dots)
        return
    }
    for (c = 1; c <= 3; ++c)
        curve(p, x, "was", colour[c], c, dots)
}

# Channels that share a curve are dashed in turn, so that each colour shows.
function overlap(p, c,    other, sharing, place) {
    sharing = 0
    place = 0
    for (other = 1; other <= 3; ++other)
        if (same(p, "now", c, other)) {
            if (other < c)
                ++place
            ++sharing
        }
    if (sharing < 2)
        return ""
    return " stroke-dasharray=\"12 " (12 * (sharing - 1)) "\" stroke-dashoffset=\"" \
        (-12 * place) "\""
}

function same(p, time, a, b,    i) {
    for (i = 0; i < count[p, time]; ++i)
        if (level[p, time, a, i] != level[p, time, b, i])
            return 0
    return 1
}

function curve(p, x, time, stroke, c, style,    i, last) {
    last = count[p, time] - 1
    printf "<polyline fill=\"none\" stroke=\"%s\" stroke-linejoin=\"round\" %s points=\"", stroke, style
    for (i = 0; i <= last; ++i)
        printf "%.2f,%.2f ", x + size * i / last, top + size * (1 - level[p, time, c, i] / 65535)
    print "\"/>"
}

function legend(y,    c, x) {
    x = left
    for (c = 1; c <= 3; ++c) {
        printf "<line x1=\"%d\" y1=\"%d\" x2=\"%d\" y2=\"%d\" stroke=\"%s\" stroke-width=\"2.5\"/>\n", \
            x, y - 4, x + 28, y - 4, colour[c]
        text(x + 36, y, 13, "#CFCFCF", "start", channel[c])
        x += 108
    }
    printf "<line x1=\"%d\" y1=\"%d\" x2=\"%d\" y2=\"%d\" stroke=\"#E6E6E6\" stroke-width=\"1.8\"" \
        " stroke-linecap=\"round\" stroke-dasharray=\"0.1 6\"/>\n", x, y - 4, x + 28, y - 4
    text(x + 36, y, 13, "#CFCFCF", "start", "Before")
}
