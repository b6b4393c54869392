#!/usr/bin/env bash
# Makes the picture files the image tests read, with ImageMagick and icoutils, and copies the
# Targa and icon files into the fuzz seed corpora. The files are committed, so every test run
# (natively and under Wine) reads the same bytes; run this again only to change them.
#
# Each picture X.png has a reference X.rgba beside it: its pixels as raw red, green, blue, alpha
# bytes, top row first. A test decodes a file made from X with the program's readers and
# compares pixel for pixel with X.rgba.
set -euo pipefail
cd "$(dirname "$0")"
ROOT=$(cd ../../.. && pwd)
C=/usr/bin/convert # ImageMagick itself (a stand-in of the same name may come first on PATH)
PNG=(-define png:exclude-chunk=date,time -strip)

rm -f ./*.png ./*.rgba ./*.tga ./*.ico ./*.bmp ./*.gif ./*.jpg

# 23 x 17 (odd sizes, so rows need padding): flat areas for run-length packets and a gradient.
$C -size 23x17 gradient:'#ff2000-#0020ff' +antialias -fill '#20c040' -draw "rectangle 0,0 9,6" \
    -fill white -draw "rectangle 14,10 22,16" "${PNG[@]}" PNG24:opaque.png
# The same colours with graded alpha: fully opaque and fully transparent blocks, a ramp between.
$C opaque.png \( -size 17x23 gradient:white-black -rotate 90 -fill white \
    -draw "rectangle 0,0 9,6" -fill black -draw "rectangle 14,10 22,16" \) \
    -alpha off -compose CopyOpacity -composite "${PNG[@]}" PNG32:alpha.png

# Few colours and on/off transparency, as palette icons hold them, at three sizes.
few() {
    local s=$1 h=$(($1 / 2)) q=$(($1 - 1))
    $C -size "${s}x${s}" xc:none +antialias -fill red -draw "rectangle 0,0 $((h - 1)),$((h - 1))" \
        -fill '#00ff00' -draw "rectangle $h,0 $q,$((h - 1))" -fill blue \
        -draw "circle $h,$((s * 3 / 4)) $h,$q" -fill yellow -draw "line 0,$q $q,$h" \
        "${PNG[@]}" "PNG32:few$s.png"
}
few 16
few 32
few 48
# Black, white and transparent: a 1-bit icon.
$C -size 16x16 xc:none +antialias -fill black -draw "rectangle 0,0 7,15" -fill white \
    -draw "rectangle 8,4 15,11" "${PNG[@]}" PNG32:bw16.png
# Graded alpha at icon sizes.
for s in 16 32 48; do
    $C alpha.png -resize "${s}x${s}!" "${PNG[@]}" "PNG32:graded$s.png"
done

for p in *.png; do
    $C "$p" -depth 8 "RGBA:${p%.png}.rgba"
done

# Targa: 24 and 32 bits, origin bottom-left and top-left, raw and RLE. ImageMagick writes the
# rows top first whatever origin it states (it keeps the origin as a tag), so for a bottom-left
# file the picture is flipped first.
for src in opaque alpha; do
    depth=24
    [ "$src" = alpha ] && depth=32
    for packing in raw:None rle:RLE; do
        $C $src.png -flip -orient BottomLeft -compress "${packing#*:}" "TGA:${src}${depth}_bl_${packing%:*}.tga"
        $C $src.png -orient TopLeft -compress "${packing#*:}" "TGA:${src}${depth}_tl_${packing%:*}.tga"
    done
done
# With an image ID field before the pixels.
$C opaque.png -flip -orient BottomLeft -set comment "made for the tests" -compress RLE \
    TGA:opaque24_id_rle.tga
# ImageMagick itself, told to honour the origin, must see the picture in each of them.
for t in *.tga; do
    ref=${t%%[0-9]*}.rgba
    $C "$t" -auto-orient -depth 8 RGBA:- | cmp -s - "$ref" || { echo "$t is not the picture" >&2; exit 1; }
done

# Icons: palette depths with the AND mask, 24 bits with the mask, 32 bits with alpha.
icotool -c -b 1 bw16.png -o icon_1bit.ico
icotool -c -b 4 few16.png -b 4 few32.png -o icon_4bit.ico
icotool -c -b 8 few32.png -b 8 few48.png -o icon_8bit.ico
icotool -c -b 24 few32.png -o icon_24bit.ico
icotool -c -b 32 graded32.png -o icon_32bit.ico
# Several sizes and depths in one file, for the choice of an image.
icotool -c -b 4 few16.png -b 32 graded16.png -b 8 few32.png -b 32 graded32.png \
    -b 32 graded48.png -o icon_sizes.ico
# Nothing 16 pixels wide: asking for 16 falls back to the first image.
icotool -c -b 4 few32.png -b 32 graded32.png -o icon_large_only.ico
# A PNG-coded image (as larger icons are stored) beside a bitmap one.
icotool -c -b 32 graded16.png -r graded48.png -o icon_with_png.ico
# Only PNG-coded images, as icons made for current desktops hold them.
icotool -c -r graded16.png -r graded32.png -r graded48.png -o icon_png_only.ico
# ImageMagick's own icon writer.
$C graded16.png few32.png graded48.png ICO:icon_magick.ico

# For the platform decoder: BMP, PNG (opaque.png, alpha.png), GIF with transparency, JPEG.
$C opaque.png BMP3:opaque.bmp
$C few32.png GIF:few32.gif
$C opaque.png -quality 95 JPG:opaque.jpg
# ImageMagick's decoding of the JPEG, the reference for it (decoders differ by a few levels).
$C opaque.jpg -depth 8 RGBA:opaque_jpg.rgba

rm -f "$ROOT"/fuzz/corpus/tga/*.tga "$ROOT"/fuzz/corpus/ico/*.ico
mkdir -p "$ROOT/fuzz/corpus/tga" "$ROOT/fuzz/corpus/ico"
cp ./*.tga "$ROOT/fuzz/corpus/tga/"
cp ./*.ico "$ROOT/fuzz/corpus/ico/"
