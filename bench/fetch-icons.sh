#!/bin/sh
# fetch-icons.sh FOLDER: puts the files of an icon set (MIT licence) into FOLDER/package/icons, with npm, unless they
# exist. They are only measured; none becomes part of the project.
set -eu
name=bootstrap-icons
version=1.11.3

mkdir -p "$1"
cd "$1"
[ -d package/icons ] && exit 0
command -v npm >/dev/null || { echo "npm is not installed" >&2; exit 1; }
npm pack --silent "$name@$version" >/dev/null || { echo "$name could not be fetched: is there a network?" >&2; exit 1; }
tar -xzf "$name-$version.tgz" package/icons package/LICENSE
