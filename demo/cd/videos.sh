#!/bin/sh
# Makes the two videos of the bonus material: videos.sh PICTURES SOUNDS WORK
set -eu
pictures=$1
sounds=$2
work=$3
mkdir -p "$work"
video() { # NAME SECONDS PICTURE SOUND FILTER
    rsvg-convert --width 2560 --height 1920 --output "$work/bild.png" "$pictures/$3"
    ffmpeg -loglevel error -y -loop 1 -framerate 15 -t "$2" -i "$work/bild.png" -i "$work/$4" \
        -vf "$5,scale=640:480,fade=in:0:15,fade=out:st=$(($2 - 1)):d=1" -t "$2" \
        -c:v mpeg4 -qscale:v 5 -g 45 -pix_fmt yuv420p -c:a libmp3lame -b:a 48k "$work/neu.avi"
    mv "$work/neu.avi" "$work/$1.avi"
}

# From the stars down to the school, where one window is green. It winks.
sox -V1 -R "$sounds/bonus-nacht.mp3" "$work/nacht.wav" pad 2 8 reverb 20 40 60 gain -n -4
video Nachtgeschichte 26 raum_nacht.svg nacht.wav \
    "drawbox=x=1432:y=1736:w=20:h=28:color=0x5cf08e:t=fill:enable='between(t,22,22.4)+between(t,22.8,24.6)',crop=1280:960:640:'960*(1-cos(PI*min(t/19,1)))/2'"

# Along the writing on the blackboard; the chalk is heard before it speaks.
sox -V1 -R -n -r 22050 -b 16 -c 1 "$work/kratzen.wav" synth 0.16 pinknoise highpass 1800 gain -14 fade q 0.02 0.16 0.08 pad 0.1 0.09 repeat 4
sox -V1 -R "$sounds/bonus-kreide.mp3" "$work/rede.wav" pad 1.9 4
sox -V1 -R -m "$work/kratzen.wav" "$work/rede.wav" "$work/kreide.wav" gain -n -4
video "Die Kreide spricht" 7 raum_chemie.svg kreide.wav "crop=480:360:'760-14*t':'318+112*(1-cos(PI*min(t/5,1)))/2'"
rm -f "$work"/*.wav "$work"/*.png
