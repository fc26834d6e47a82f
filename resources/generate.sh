#!/bin/sh
# Makes every picture of the product from its drawing; see README.md.
# Needs rsvg-convert. The results are committed, so a build never runs this.
set -eu
cd "$(dirname "$0")"

render() { # drawing size picture
    rsvg-convert --width "$2" --height "$2" "$1" --output "$3"
}

mkdir -p images/p images/m images/t images/workbench

for drawing in svg/*.svg; do
    name=$(basename "$drawing" .svg)
    case $name in workbench*) continue ;; esac
    render "$drawing" 16 "images/$name.png"
    render "$drawing" 32 "images/$name@2x.png"
    render "$drawing" 48 "images/$name@3x.png"
done

# The dots of the large drawing run together at 16 pixels, so that size has its own.
render svg/workbench-small.svg 16 images/workbench/workbench-16.png
for size in 32 48 128 256; do
    render svg/workbench.svg $size "images/workbench/workbench-$size.png"
done

# Each picture of frames.txt becomes a drawing of one rectangle a pixel.
drawings=$(mktemp -d)
trap 'rm -r "$drawings"' EXIT
awk -v folder="$drawings" '
    BEGIN {
        colour["R"] = "#ff0000"; colour["O"] = "#ff8000"; colour["Y"] = "#ffff00"
        colour["G"] = "#00ff00"; colour["C"] = "#00ffff"; colour["B"] = "#0000ff"
        colour["M"] = "#ff00ff"; colour["W"] = "#ffffff"; colour["."] = "#000000"
    }
    function close_picture(    file) {
        if (name == "") return
        file = folder "/" name ".svg"
        printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" " \
            "shape-rendering=\"crispEdges\">%s</svg>\n", width, height, body > file
        close(file)
        name = ""
    }
    /^#/ { next }
    /^$/ { close_picture(); next }
    name == "" { name = $0; width = 0; height = 0; body = ""; next }
    {
        if (height > 0 && length($0) != width) {
            print "frames.txt:" FNR ": uneven rows in " name > "/dev/stderr"; exit 1
        }
        width = length($0)
        for (x = 1; x <= width; ++x) {
            pixel = substr($0, x, 1)
            if (!(pixel in colour)) {
                print "frames.txt:" FNR ": no colour " pixel > "/dev/stderr"; exit 1
            }
            body = body sprintf("<rect x=\"%d\" y=\"%d\" width=\"1\" height=\"1\" fill=\"%s\"/>",
                x - 1, height, colour[pixel])
        }
        ++height
    }
    END { close_picture() }
' frames.txt
for drawing in "$drawings"/*.svg; do
    name=$(basename "$drawing" .svg)
    folder=$(printf '%.1s' "$name" | tr PMT pmt)
    rsvg-convert "$drawing" --output "images/$folder/$name.png"
done
