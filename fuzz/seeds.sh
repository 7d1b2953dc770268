#!/usr/bin/env bash
# Small files to begin with, a directory for each target of pictures, sounds, songs, films, games, walks, archives and titles:
# fuzz/seeds.sh SOURCES INTO
set -euo pipefail
sources=$1 into=$2
for target in picture sound song film games walk notes zip title settings; do
    rm -rf "$into/fuzz-$target"
    mkdir -p "$into/fuzz-$target"
done
picture=$into/fuzz-picture sound=$into/fuzz-sound film=$into/fuzz-film

drawn=(-size 12x9 gradient:red-blue)
for type in Bilevel Palette TrueColor; do
    convert "${drawn[@]}" -colors 16 -type $type "BMP3:$picture/$type.bmp"
    convert "${drawn[@]}" -colors 16 -type $type "PNG:$picture/$type.png"
done
convert "${drawn[@]}" -compress RLE -colors 16 -type Palette "BMP3:$picture/packed.bmp"
convert "${drawn[@]}" "BMP2:$picture/old.bmp"
convert "${drawn[@]}" -alpha set "PNG:$picture/alpha.png"
convert "${drawn[@]}" -interlace PNG "PNG:$picture/interlaced.png"
convert "${drawn[@]}" "JPEG:$picture/plain.jpg"
convert "${drawn[@]}" -interlace JPEG "JPEG:$picture/progressive.jpg"
convert "${drawn[@]}" -colorspace Gray "JPEG:$picture/grey.jpg"
convert -size 16x16 xc:none -fill white -draw 'circle 8,8 8,3' "ICO:$picture/icon.ico"
convert "${drawn[@]}" "GIF:$picture/plain.gif"
convert "${drawn[@]}" -alpha set -interlace GIF "GIF:$picture/interlaced.gif"
convert -size 16x16 xc:none -fill white -draw 'rectangle 2,2 8,8' "CUR:$picture/pointer.cur"
convert -size 16x16 xc:red -colors 2 -type Palette "ICO:$picture/shallow.ico"

for bits in 8 16 24 32; do sox -n -r 8000 -b $bits "$sound/$bits.wav" synth 0.05 sine 440; done
sox -n -r 8000 -e ms-adpcm "$sound/packed.wav" synth 0.05 sine 440
sox -n -r 22050 -C 32 "$sound/tone.mp3" synth 0.2 sine 440
sox -n -r 44100 -c 2 -C 64 "$sound/stereo.mp3" synth 0.1 sine 440
cp "$sound"/* "$film"

encode() { ffmpeg -v error -y -f lavfi -i testsrc=size=48x32:rate=25:duration=0.24 -f lavfi -i sine=duration=0.24 "$@"; }
encode -c:v mpeg1video -c:a mp2 "$film/a.mpg"
encode -c:v mjpeg -c:a pcm_u8 -ar 8000 "$film/b.avi"
encode -c:v cinepak -c:a adpcm_ima_wav -ar 8000 "$film/c.avi"
encode -c:v mpeg4 -c:a aac "$film/d.mp4"
encode -an -c:v flv1 "$film/e.flv"

cp "$sources/demo/games/quiz/HDW.txt" "$into/fuzz-games"
echo '3,14159265358979' >"$into/fuzz-games/Pi10000.txt"
cp "$sources"/demo/walks/*.walk "$sources"/tests/walks/*.walk "$into/fuzz-walk"
printf '# Ton\nmusic = 40\nspeech = 0\nmuted = yes\nmuted = no\nfullscreen = yes\nnonsense\n' >"$into/fuzz-settings/some"
cp "$sources/demo/titel.txt" "$into/fuzz-title"
printf '/dev/sr0 /media/CD\\040ROM iso9660 ro 0 0\n/dev/sda1 / ext4 rw 0 0\n' >"$into/fuzz-title/mounts"
cp "$sources"/demo/music/*.notes "$into/fuzz-notes"

# Any bytes are a course of the whole program.
for target in play opcodes; do
    rm -rf "$into/fuzz-$target"
    mkdir -p "$into/fuzz-$target"
    for seed in 1 2 3 4 5 6 7 8; do
        LC_ALL=C awk -v seed=$seed 'BEGIN { srand(seed); for (i = 0; i < 80 * seed; ++i) printf "%c", int(rand() * 256) }' \
            >"$into/fuzz-$target/$seed"
    done
done
