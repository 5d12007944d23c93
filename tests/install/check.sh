#!/bin/sh
# Installs the build into a scratch prefix, then builds a consumer with
# find_package(Veltra) and another with pkg-config, and runs both.
set -eu
build=$1; source=$2; scratch=$3
rm -rf "$scratch"
cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
cmake -S "$source/tests/install" -B "$scratch/consumer" \
      -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/consumer" >/dev/null
LD_LIBRARY_PATH="$scratch/prefix/lib" "$scratch/consumer/consumer"
lib=$(find "$scratch/prefix" -name veltra.pc -exec dirname {} \;)
PKG_CONFIG_PATH="$lib" cc -o "$scratch/pkgconfig-consumer" \
  "$source/tests/c_api.c" $(PKG_CONFIG_PATH="$lib" pkg-config --cflags --libs veltra)
LD_LIBRARY_PATH="$(dirname "$lib")" "$scratch/pkgconfig-consumer"
echo "install, find_package and pkg-config consumers work"
