#!/bin/sh
# static.sh FOLDER [windows]: builds a host with the static library as a part of itself in FOLDER, lets it
# install Pelmora with itself, and uses what is installed.
set -eu
project=$(realpath "$(dirname "$0")/../..")
folder=$(realpath -m "$1")
rm -rf "$folder"
mkdir -p "$folder"
system=${2:-}
compiler=-DCMAKE_CXX_COMPILER=g++
emulator=
set -- --cxx=g++ --cc=gcc
if [ "$system" = windows ]; then
    compiler=-DCMAKE_TOOLCHAIN_FILE=$project/cmake/mingw64.cmake
    emulator=$project/scripts/wine-run
    wine=$project/build/windows/wine
    prefix=x86_64-w64-mingw32
    set -- --cxx=$prefix-g++-posix --cc=$prefix-gcc-posix --toolchain="$project/cmake/mingw64.cmake" \
        --emulator="$emulator;$wine"
fi

cmake -S "$project/tests/package/host" -B "$folder/host" -G Ninja "$compiler" -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_STANDARD=17 -DCMAKE_UNITY_BUILD=ON -DBUILD_SHARED_LIBS=OFF -DPELMORA_INSTALL=ON \
    -DFETCHED=ON -DFETCHCONTENT_SOURCE_DIR_PELMORA="$project" >"$folder/log"
cmake --build "$folder/host" >>"$folder/log" || { cat "$folder/log" >&2; exit 1; }
${emulator:+"$emulator" "$wine"} "$folder"/host/programs/program* | grep -q "^5 mcg"
cmake --install "$folder/host" --prefix "$folder/installed" >/dev/null
python3 -B "$project/tests/package/consume.py" "$@" "$folder/installed" "$folder/programs"
