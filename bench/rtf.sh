#!/bin/sh
# Builds the benchmark of the RTF reader and runs it: see rtf.py.
set -e
cd "$(dirname "$0")/.."
cmake --preset bench -DTIRELUNE_BUREAU=OFF
ninja -C build/bench banc-lire-rtf
exec bench/rtf.py
