#!/bin/sh
# Makes theme packages the way other people make them, with Debian's zip and Python's zipfile:
# one theme stored and deflated, with and without a top folder, with and without data
# descriptors. The install tests unpack each and compare it with theme/Peer, the files packed.
# Usage: make_peer_packages.sh <folder>
set -eu
out=$1
rm -rf "$out"
mkdir -p "$out/theme/Peer/sounds"
cd "$out/theme/Peer"
printf '[Skin Info]\r\nName=Peer\r\nAuthor=Someone Else\r\n[Topbar]\r\nPortrait=bar.bmp\r\n' >peer.skin
# A picture that deflates well, one that does not, a sound and an empty file.
awk 'BEGIN { for (i = 0; i < 20000; i++) printf "%c", 65 + (i * i + int(i / 7)) % 23 }' >bar.bmp
head -c 30000 /dev/urandom >noise.png
awk 'BEGIN { for (i = 0; i < 5000; i++) printf "RIFF%d", i }' >sounds/start.wav
: >empty.txt
cd ..

/usr/bin/zip -q -r -0 ../zip-stored-top.zip Peer
/usr/bin/zip -q -r -9 ../zip-deflated-top.zip Peer
(cd Peer && /usr/bin/zip -q -r ../../zip-root.zip .)
# Written into a pipe, zip cannot go back to fill in sizes: it writes data descriptors.
/usr/bin/zip -q -r - Peer | cat >../zip-descriptors-top.zip

/usr/bin/python3 - "$out" <<'PY'
import io, os, sys, zipfile

out = sys.argv[1]
theme = os.path.join(out, "theme")

def files(root):
    for folder, _, names in sorted(os.walk(root)):
        for name in sorted(names):
            path = os.path.join(folder, name)
            yield path, os.path.relpath(path, root).replace(os.sep, "/")

def pack(name, method, top):
    with zipfile.ZipFile(os.path.join(out, name), "w", method) as z:
        for path, rel in files(os.path.join(theme, "Peer")):
            z.write(path, "Peer/" + rel if top else rel)

class Unseekable(io.RawIOBase):
    """A stream that cannot seek: zipfile then writes data descriptors."""
    def __init__(self, f):
        self.f = f
    def writable(self):
        return True
    def write(self, b):
        return self.f.write(b)

pack("python-stored-top.zip", zipfile.ZIP_STORED, True)
pack("python-deflated-root.zip", zipfile.ZIP_DEFLATED, False)
with open(os.path.join(out, "python-descriptors-top.zip"), "wb") as f:
    with zipfile.ZipFile(Unseekable(f), "w", zipfile.ZIP_DEFLATED) as z:
        for path, rel in files(os.path.join(theme, "Peer")):
            with open(path, "rb") as src:
                z.writestr("Peer/" + rel, src.read())
PY
