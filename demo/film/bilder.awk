# The frames of the film, one SVG each: awk -f bilder.awk -v into=DIR. The pictures behind them lie there as
# lampen.png, baender.png, roehre.png and raum.png. All places are those of the room of 640 by 480.

# --- numbers

function least(a, b) { return a < b ? a : b }
function most(a, b) { return a > b ? a : b }
# From 0 to 1 while t goes from a to b, with a soft start and a soft end.
function ease(t, a, b,   x) { x = most(0, least(1, (t - a) / (b - a))); return x * x * (3 - 2 * x) }
function mix(a, b, x) { return a + (b - a) * x }
# From 0 to 1, without order but the same for the same n.
function noise(n,   x) { x = sin(n * 12.9898 + 4.1414) * 43758.5453; return x - int(x) < 0 ? x - int(x) + 1 : x - int(x) }

function put(text) { print text > file }

# --- things

# A reel as it lies in the cabinet, turned by so many degrees.
function reel(x, y, angle) {
    put("<g transform=\"translate(" x " " y ")\"><circle r=\"25\" class=\"l\" fill=\"#3b2a40\"/><circle r=\"22\" fill=\"#5b3f44\"/>" \
        "<circle r=\"20\" fill=\"none\" stroke=\"#3b2a40\" stroke-width=\".6\"/><circle r=\"17\" fill=\"none\" stroke=\"#3b2a40\" stroke-width=\".8\"/>" \
        "<g transform=\"rotate(" angle ")\"><circle r=\"13\" class=\"i\" fill=\"url(#spule)\"/>" \
        "<path d=\"M0 -11 L3.600 -5.500 H-3.600 Z M9.500 5.500 L3 5.900 L6.600 -.400 Z M-9.500 5.500 L-3 5.900 L-6.600 -.400 Z\" fill=\"#6b7a96\"/>" \
        "<circle r=\"4\" class=\"i\" fill=\"#3d4763\"/><path d=\"M-2 -3.400 H2\" stroke=\"#dbe3e4\" stroke-width=\".9\"/></g>" \
        "<path d=\"M-17 -12 A21 21 0 0 1 -4 -20\" stroke=\"#d9a890\" stroke-width=\"1.600\" fill=\"none\" stroke-linecap=\"round\"/></g>")
}

# A lamp of one of the four colours, dark or lit; light from 0 to 1.
function lamp(x, y, r, n, light) {
    if (light > 0) put("<circle cx=\"" x "\" cy=\"" y "\" r=\"" r * 5 "\" fill=\"url(#hof" n ")\" opacity=\"" light "\"/>")
    put("<circle cx=\"" x "\" cy=\"" y "\" r=\"" r "\" class=\"i\" fill=\"#3d2f4e\"/>")
    put("<circle cx=\"" x "\" cy=\"" y "\" r=\"" r - .4 "\" fill=\"" colour[n] "\" opacity=\"" mix(.12, 1, light) "\"/>")
    if (light > 0) put("<circle cx=\"" x - r * .3 "\" cy=\"" y - r * .3 "\" r=\"" r * .32 "\" fill=\"#fff6dd\" opacity=\"" .9 * light "\"/>")
}

# The lamps below the tube, which come on one after the other.
function front_lamps(t,   i, since, light) {
    for (i = 1; i <= 4; i++) {
        since = t - lit[i]
        light = since < 0 ? 0 : since < .25 ? noise(int(since * 30) + i * 7) : 1
        lamp(273.5 + (i - 1) * 15.64, 221.2, 5.5, i, light)
    }
}

# The strips of the tape cabinets, which blink as long as the tapes run.
function tape_lamps(t,   i, run) {
    run = t > tapes
    for (i = 0; i < 2; i++) {
        lamp(94 + i * 90, 235 - i * 6, 4, 2, run)
        lamp(107 + i * 90, 235 - i * 6, 4, 1, run && noise(int(t * 7) + i * 50) > .45)
        if (run && noise(int(t * 5) + i * 31 + 9) > .5)
            put("<path fill=\"#fff6dd\" opacity=\".8\" filter=\"url(#klein)\" d=\"M" 118 + i * 90 " " 230 - i * 6 " h9 v10 h-9 Z\"/>")
    }
}

# The little field of lamps above the printer.
function field_lamps(t,   i, x, y) {
    if (t < tube) return
    for (i = 0; i < 40; i++) {
        x = 422 + (i % 8) * 8
        y = 164 + int(i / 8) * 8
        if (noise(i * 3 + int(t * 4 + i * .37)) > .58)
            put("<path fill=\"" colour[1 + i % 4] "\" d=\"M" x " " y " h5 v5 h-5 Z\"/>")
        else
            put("<path fill=\"#2b2140\" opacity=\".75\" d=\"M" x " " y " h5 v5 h-5 Z\"/>")
    }
}

# How far the reels have turned.
function turned(t,   s) {
    s = most(0, t - tapes)
    return s < 2 ? 90 * s * s : 360 + 360 * (s - 2)
}

function reels(t) {
    reel(118, 120, turned(t))
    reel(118, 178, -turned(t) * .8 + 30)
    reel(208, 114, turned(t) * .9 + 70)
    reel(208, 172, -turned(t) * 1.1)
}

function typed(t,   i, left, line, y) {
    left = int(most(0, t - typing) * 30)
    y = 92
    for (i = 1; i <= lines && left >= 0; i++) {
        line = substr(text[i], 1, left)
        gsub(/A_/, "Ä", line)
        if (i == lines || left <= length(text[i])) line = line (int(t * 6) % 2 || left < length(text[i]) ? "█" : "")
        put("<g font-family=\"DejaVu Sans Mono\" font-weight=\"bold\" font-size=\"8\" fill=\"#d5ffd9\" xml:space=\"preserve\">" \
            "<text x=\"60\" y=\"" y "\" filter=\"url(#klein)\" opacity=\".8\">" line "</text><text x=\"60\" y=\"" y "\">" line "</text></g>")
        left -= length(text[i])
        y += i == 2 || i == 4 ? 13 : 11
    }
}

# Eyes that open, and a mouth that does not smile yet.
function face(open) {
    put("<g stroke=\"#d5ffd9\" stroke-linecap=\"round\" opacity=\"" open "\"><path d=\"M72 84 H96 M124 84 H148\" stroke-width=\"5\"/>" \
        "<path d=\"M86 128 H134\" stroke-width=\"6\"/></g>")
    put("<g transform=\"translate(0 99) scale(1 " most(.08, open) ")\"><path d=\"M76 -7 h18 v14 h-18 Z M126 -7 h18 v14 h-18 Z\" fill=\"#d5ffd9\"/>" \
        "<path d=\"M82 -3 h7 v8 h-7 Z M132 -3 h7 v8 h-7 Z\" fill=\"#0c3a34\"/></g>")
}

# The tube, in the measures of the cabinet: dark, a line that opens to a picture, letters, a face.
function screen(t,   glow, open, glass) {
    glass = "M48 66 C72 58 148 58 172 66 C178 90 178 122 172 146 C148 153 72 153 48 146 C42 122 42 90 48 66 Z"
    open = ease(t, tube, tube + .45)
    glow = t < tube ? 0 : t < tube + .5 ? mix(.4, 1, noise(int(t * 25))) : .93 + .07 * sin(t * 21)
    put("<g transform=\"translate(236 82) scale(.7818)\">")
    if (glow > 0) put("<path d=\"" glass "\" fill=\"#5cf08e\" opacity=\"" .55 * glow * open "\" filter=\"url(#gross)\"/>")
    put("<path d=\"" glass "\" class=\"l\" style=\"stroke-width:2.200\" fill=\"url(#aus)\"/>")
    put("<clipPath id=\"glas\"><path d=\"" glass "\"/></clipPath><g clip-path=\"url(#glas)\">")
    if (glow > 0) {
        put("<rect x=\"40\" y=\"" 106 - 48 * open "\" width=\"140\" height=\"" 96 * open + 1.5 "\" fill=\"url(#an)\" opacity=\"" glow "\"/>")
        if (open < 1) put("<path d=\"M44 106 H176\" stroke=\"#d5ffd9\" stroke-width=\"" mix(3.5, 1, open) "\" opacity=\"" 1 - open * .8 "\"/>")
        if (t >= typing && t < awake) typed(t)
        if (t >= awake) { put("<g filter=\"url(#klein)\" opacity=\".8\">"); face(ease(t, awake, awake + .5)); put("</g>"); face(ease(t, awake, awake + .5)) }
        put("<rect x=\"40\" y=\"" 58 + (t * 40) % 100 "\" width=\"140\" height=\"9\" fill=\"#d5ffd9\" opacity=\".07\"/>")
    }
    put("<rect x=\"40\" y=\"56\" width=\"140\" height=\"100\" fill=\"url(#zeilen)\"/></g><path d=\"" glass "\" class=\"l\" style=\"stroke-width:2.200\" fill=\"none\"/>")
    put("<path d=\"M54 80 C56 72 64 68 80 66\" stroke=\"#fff6dd\" stroke-width=\"5\" fill=\"none\" stroke-linecap=\"round\" opacity=\"" mix(.28, .7, glow) "\"/></g>")
}

# The beacon on the ceiling sleeps.
function beacon() {
    put("<path d=\"M304 58 V46 C304 26 336 26 336 46 V58 Z\" fill=\"#7a2637\" class=\"l\"/><path d=\"M300 58 H340 V66 H300 Z\" fill=\"#3d4763\" class=\"l\"/>" \
        "<path d=\"M311 50 C311 40 314 35 320 34\" stroke=\"#f59a77\" stroke-width=\"2\" fill=\"none\" stroke-linecap=\"round\"/>")
}

# --- the film

function definitions(  n) {
    put("<defs><radialGradient id=\"spule\" cx=\".4\" cy=\".35\" r=\".7\"><stop offset=\"0\" stop-color=\"#fff6dd\"/><stop offset=\".6\" stop-color=\"#c6d0d8\"/><stop offset=\"1\" stop-color=\"#6b7a96\"/></radialGradient>" \
        "<radialGradient id=\"an\" cx=\".42\" cy=\".38\" r=\".75\"><stop offset=\"0\" stop-color=\"#3fc47c\"/><stop offset=\".5\" stop-color=\"#17805a\"/><stop offset=\"1\" stop-color=\"#072b2a\"/></radialGradient>" \
        "<radialGradient id=\"aus\" cx=\".4\" cy=\".35\" r=\".8\"><stop offset=\"0\" stop-color=\"#1c3f44\"/><stop offset=\"1\" stop-color=\"#08161c\"/></radialGradient>" \
        "<radialGradient id=\"schein\" cx=\"320\" cy=\"150\" r=\"380\" gradientUnits=\"userSpaceOnUse\"><stop offset=\"0\" stop-color=\"#5cf08e\" stop-opacity=\".36\"/><stop offset=\".45\" stop-color=\"#5cf08e\" stop-opacity=\".16\"/><stop offset=\"1\" stop-color=\"#5cf08e\" stop-opacity=\".03\"/></radialGradient>" \
        "<radialGradient id=\"rand\" cx=\".5\" cy=\".46\" r=\".75\"><stop offset=\".45\" stop-color=\"#140d26\" stop-opacity=\"0\"/><stop offset=\"1\" stop-color=\"#140d26\" stop-opacity=\".8\"/></radialGradient>" \
        "<filter id=\"klein\" x=\"-30%\" y=\"-60%\" width=\"160%\" height=\"220%\"><feGaussianBlur stdDeviation=\"1.600\"/></filter>" \
        "<filter id=\"gross\" x=\"-60%\" y=\"-60%\" width=\"220%\" height=\"220%\"><feGaussianBlur stdDeviation=\"14\"/></filter>" \
        "<pattern id=\"zeilen\" width=\"4\" height=\"3\" patternUnits=\"userSpaceOnUse\"><path d=\"M0 .500 H4\" stroke=\"#041a1a\" stroke-width=\"1.100\" opacity=\".4\"/></pattern></defs>" \
        "<style>.l{stroke:#2b2140;stroke-width:1.3;stroke-linejoin:round}.i{stroke:#2b2140;stroke-width:.8;stroke-linejoin:round}</style>")
    for (n in colour)
        put("<radialGradient id=\"hof" n "\"><stop offset=\".1\" stop-color=\"" colour[n] "\" stop-opacity=\".5\"/><stop offset=\".45\" stop-color=\"" colour[n] "\" stop-opacity=\".14\"/><stop offset=\"1\" stop-color=\"" colour[n] "\" stop-opacity=\"0\"/></radialGradient>")
}

# One moment, seen through a window whose left upper corner and width are given; `behind` fills the rectangle given.
function frame(t, x, y, width, behind, bx, by, bw,   dark, light) {
    light = ease(t, tube, tube + .6)
    dark = mix(mix(.8, .46, ease(t, lit[1], tapes + .5)), .16, ease(t, tube, awake))
    put("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"640\" height=\"480\" viewBox=\"" x " " y " " width " " width * .75 "\">")
    definitions()
    put("<image href=\"" behind "\" x=\"" bx "\" y=\"" by "\" width=\"" bw "\" height=\"" bw * .75 "\"/>")
    reels(t)
    beacon()
    put("<rect x=\"-10\" y=\"-10\" width=\"660\" height=\"500\" fill=\"#140d26\" opacity=\"" dark "\"/>")
    if (t >= tube) put("<rect width=\"640\" height=\"480\" fill=\"url(#schein)\" opacity=\"" light * (.94 + .06 * sin(t * 21)) "\"/>")
    front_lamps(t)
    tape_lamps(t)
    field_lamps(t)
    screen(t)
    put("<rect x=\"" x "\" y=\"" y "\" width=\"" width "\" height=\"" width * .75 "\" fill=\"url(#rand)\"/>")
    # It begins and ends in the dark.
    if (t < .5) put("<rect x=\"-10\" y=\"-10\" width=\"660\" height=\"500\" fill=\"#140d26\" opacity=\"" 1 - ease(t, 0, .5) "\"/>")
    put("</svg>")
    close(file)
}

BEGIN {
    rate = 15
    seconds = 10
    lit[1] = .6; lit[2] = 1.0; lit[3] = 1.4; lit[4] = 1.8
    tapes = 2.3; tube = 4.5; typing = 5.0; awake = 7.9
    colour[1] = "#f9c552"; colour[2] = "#5cf08e"; colour[3] = "#dc6350"; colour[4] = "#69aaa5"
    lines = split("ZENTROX - 4 KB|BA_NDER LAUFEN|LETZTER BESUCH: 1979|NEUER BESUCH: JETZT|GUTEN TAG.", text, "|")
    for (i = 0; i < rate * seconds; i++) {
        t = i / rate
        file = sprintf("%s/bild%03d.svg", into, i)
        if (t < tapes)  # down from the name to the lamps
            frame(t, 250, mix(84, 126, ease(t, .2, 1.9)), 150, "lampen.png", 226, 80, 216)
        else if (t < tube)  # along the tapes
            frame(t, mix(66, 78, ease(t, tapes, tube)), mix(92, 98, ease(t, tapes, tube)), mix(204, 190, ease(t, tapes, tube)), "baender.png", 60, 86, 216)
        else if (t < 7.5) {  # before the tube
            w = mix(172, 142, ease(t, tube, 6.6))
            frame(t, 321.6 - w / 2, 164 - w * .375, w, "roehre.png", 226, 90, 192)
        } else {  # and back until all of the room is there
            w = mix(190, 640, ease(t, 7.5, 9.5))
            frame(t, mix(321.6 - 95, 0, (w - 190) / 450), mix(164 - 71.25, 0, (w - 190) / 450), w, "raum.png", 0, 0, 640)
        }
    }
}
