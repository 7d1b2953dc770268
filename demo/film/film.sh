#!/bin/sh
# Draws the film and sets it together: film.sh PICTURES WORK TARGET
set -eu
here=$(dirname "$0")
pictures=$1
work=$2
target=$3
export LC_ALL=C.UTF-8
rm -rf "$work"
mkdir -p "$work"

# What does not move: the room with the cabinet in it, and a part of it for each shot.
rsvg-convert --width 2560 --height 1920 --output "$work/leer.png" "$pictures/basis_zentrox.svg"
rsvg-convert --width 688 --height 1188 --output "$work/schrank.png" "$pictures/people/zentrox.svg"
"${CONVERT:-convert}" "$work/leer.png" "$work/schrank.png" -geometry +944+328 -composite -depth 8 "$work/alles.png"
part() { "${CONVERT:-convert}" "$work/alles.png" -crop "$2" +repage -resize "$3" -define png:compression-level=1 "$work/$1.png"; }
part lampen 864x648+904+320 864x648
part baender 864x648+240+344 864x648
part roehre 768x576+904+360 768x576
part raum 2560x1920+0+0 1280x960

awk -f "$here/bilder.awk" -v into="$work"
ls "$work" | sed -n 's/\.svg$//p' | xargs -P "$(nproc)" -I NAME rsvg-convert --output "$work/NAME.png" "$work/NAME.svg"

# What is to be heard: relays, motors, the tube, the letters, and three notes as the eyes open.
tone() { name=$1; shift; sox -V1 -R -n -r 22050 -b 16 -c 1 "$work/$name.wav" "$@"; }
tone summen synth 10 sine 50 synth 10 sine mix 100 synth 10 sine mix 150 gain -17 fade t 2.5 10 0.4
for at in 0.6 1.0 1.4 1.8; do
    tone "relais$at" synth 0.03 whitenoise highpass 900 gain -9 fade l 0.001 0.03 0.025 : \
        synth 0.06 sine 210-150 gain -9 fade l 0.001 0.06 0.05
    sox -V1 -R "$work/relais$at.wav" "$work/teil_relais$at.wav" pad "$at"
done
tone motor synth 2.2 sawtooth 18-96 lowpass 620 gain -13 fade q 0.6 2.2 0 : \
    synth 5.5 sawtooth 96 lowpass 620 gain -13 tremolo 4 18 fade t 0 5.5 1.2
sox -V1 -R "$work/motor.wav" "$work/teil_motor.wav" pad 2.3
tone roehre synth 0.06 whitenoise gain -9 fade l 0.001 0.06 0.04 : synth 0.5 sine 60-2400 gain -16 fade q 0.02 0.5 0.4
sox -V1 -R "$work/roehre.wav" "$work/teil_roehre.wav" pad 4.5
tone zeichen synth 0.022 square 1318 lowpass 3500 gain -20 fade l 0.001 0.022 0.01 pad 0 0.044667 repeat 38
sox -V1 -R "$work/zeichen.wav" "$work/teil_zeichen.wav" pad 5.0
tone gruss synth 0.16 triangle 523 gain -12 fade l 0.003 0.16 0.04 : synth 0.16 triangle 659 gain -12 fade l 0.003 0.16 0.04 : \
    synth 0.90 triangle 784 synth 0.90 triangle mix 1047 gain -10 fade l 0.003 0.90 0.85
sox -V1 -R "$work/gruss.wav" "$work/teil_gruss.wav" pad 7.95
sox -V1 -R -m "$work/summen.wav" "$work"/teil_*.wav "$work/ton.wav" trim 0 10 reverb 16 40 40 gain -n -5 fade t 0.01 10 0.3

ffmpeg -loglevel error -y -framerate 15 -i "$work/bild%03d.png" -i "$work/ton.wav" -t 10 \
    -c:v mpeg4 -qscale:v 4 -g 30 -pix_fmt yuv420p -c:a libmp3lame -b:a 64k -f avi "$work/zentrox.avi"
folder=$(dirname "$target")
cp "$work/zentrox.avi" "$folder/.zentrox.avi"
mv "$folder/.zentrox.avi" "$target"
