#!/bin/bash
# One step of the package test: package.sh STEP SOURCE-DIR BUILD-DIR PREFIX
# CXX names the compiler and LIBDIR the library directory below the prefix.
set -eu
step=$1 source=$2 build=$3 prefix=$4
libraries="$prefix/$LIBDIR"
work=$(dirname "$prefix")

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# The compiler flags that an outside user gets.
package_flags() {
    PKG_CONFIG_PATH="$libraries/pkgconfig" pkg-config "$@"
}

step_install() {
    rm -rf "$prefix"
    cmake --install "$build" --prefix "$prefix" >/dev/null
    [ -e "$libraries/gliololok.so.1" ] || fail "the library was not installed"
}

# same_headers DIRECTORY INSTALLED-DIRECTORY: both hold the same headers, with the same contents.
same_headers() {
    diff -r "$1" "$2" || fail "$2 differs from $1"
}

step_headers() {
    local expected="csvganimate.h csvgbase.h csvgbaseundocmd.h csvgobj.h csvgpropitem.h svgobj_global.h"
    local actual
    actual=$(cd "$prefix/include/svgobj" && LC_ALL=C ls | tr '\n' ' ')
    [ "$actual" = "$expected " ] || fail "include/svgobj holds: $actual"
    same_headers "$source/include/svgobj" "$prefix/include/svgobj"
    same_headers "$source/src/host/framework" "$prefix/include/gliololok-host/framework"
    same_headers "$source/src/host/svgbase" "$prefix/include/gliololok-host/svgbase"
    same_headers "$source/reference/framework/include/pagehost" "$prefix/include/gliololok-host/pagehost"
    same_headers "$source/kit/include/shapekit" "$prefix/include/shapekit"
}

step_soname() {
    local soname
    soname=$(readelf -d "$libraries/gliololok.so" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
    [ "$soname" = gliololok.so.1 ] || fail "the soname is '$soname'"
    soname=$(readelf -d "$libraries/libgliololok-shapekit.so" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
    [ "$soname" = libgliololok-shapekit.so.1 ] || fail "the soname of the kit is '$soname'"
}

# A link without its target counts: names of libraries are in another component than these.
is_there() {
    [ -e "$1" ] || [ -L "$1" ]
}

# installs COMPONENT FILE...: that component alone has these files.
installs() {
    local component=$1 other file
    shift
    for other in runtime development board shapes tools; do
        [ -d "$work/components/$other" ] ||
            cmake --install "$build" --component "$other" --prefix "$work/components/$other" >/dev/null
        for file in "$@"; do
            if [ "$other" = "$component" ]; then
                is_there "$work/components/$other/$file" || fail "component $other lacks $file"
            else
                ! is_there "$work/components/$other/$file" || fail "component $other has $file, too"
            fi
        done
    done
}

step_components() {
    local part all
    rm -rf "$work/components"
    installs runtime "$LIBDIR"/{gliololok,libgliololok-shapekit}.so.1 "$LIBDIR"/gliololok/lib{framework,svgbase}.so.1
    installs development "$LIBDIR"/libgliololok-shapekit.so "$LIBDIR"/cmake/gliololok/gliololokConfig.cmake \
        "$LIBDIR"/pkgconfig/gliololok.pc include/svgobj/csvgobj.h include/shapekit/shape.h
    installs board bin/gliololok-board share/man/man1/gliololok-board.1 share/mime/packages/gliololok.xml \
        share/applications/org.gliololok.Board.desktop share/icons/hicolor/256x256/apps/org.gliololok.Board.png
    installs shapes "$LIBDIR"/gliololok/shapes/{declared.so,star.shape.svg}
    installs tools bin/gliololok-shape share/man/man1/gliololok-shape.1 \
        share/doc/gliololok/docs/shape-{author,reference}.md share/doc/gliololok/examples/declared/star.shape.svg
    # Every installed file belongs to one of them.
    all=$(cd "$prefix" && find . ! -type d | sort)
    part=$(for component in "$work"/components/*; do (cd "$component" && find . ! -type d); done | sort)
    [ "$part" = "$all" ] || fail "the components are not the installation: $(diff <(echo "$all") <(echo "$part"))"
}

# versions_of LIBRARY: the versions of its exported symbols, but for the one that names the version itself.
versions_of() {
    objdump -T "$1" | awk '/\*UND\*/ {next} /^[0-9a-f]+ [gwu]/ && !/\*ABS\*/ {print $(NF-1)}' | tr -d '()' | sort -u
}

step_symbol_versions() {
    local pair versions
    for pair in gliololok:GLIOLOLOK_1 gliololok/libframework:FRAMEWORK_1 gliololok/libsvgbase:SVGBASE_1 \
        libgliololok-shapekit:SHAPEKIT_1; do
        versions=$(versions_of "$libraries/${pair%:*}.so.1")
        [ "$versions" = "${pair#*:}" ] || fail "symbols of ${pair%:*} have the versions: $versions"
    done
}

# Flags that every linker and compiler knows. Qt's headers ask for -fPIC, and programs find the host's libraries in their
# private folder.
step_pkgconfig_flags() {
    local package flag
    for package in gliololok gliololok-shapekit; do
        for flag in $(package_flags --cflags --libs "$package"); do
            case $flag in
            -l:*) fail "$package names a library by its file: $flag" ;;
            -Wl,-rpath,/*/gliololok) ;;
            -l* | -L/* | -I/* | -D* | -fPIC) ;;
            *) fail "$package has the flag $flag" ;;
            esac
        done
    done
    [ "$(readlink "$libraries/libgliololok.so")" = gliololok.so.1 ] || fail "libgliololok.so is no link to the library"
}

# compile_alone COMPILER FLAGS: each header named in the input compiles by itself, without a warning.
compile_alone() {
    local compiler=$1 flags=$2
    xargs -P "$(nproc)" -I NAME sh -c "echo '#include <NAME>' |
        $compiler -std=c++17 -fPIC -Wall -Wextra -Wpedantic -Wshadow -Werror -fsyntax-only $flags -x c++ - ||
        { echo 'FAIL: <NAME> does not compile alone with $compiler' >&2; exit 1; }"
}

step_standalone_headers() {
    local flags headers compiler
    headers=$(for header in "$prefix"/include/svgobj/*.h "$prefix"/include/gliololok-host/*/*.h \
        "$prefix"/include/shapekit/*.h; do
        echo "$(basename "$(dirname "$header")")/$(basename "$header")"
    done)
    [ "$(echo "$headers" | wc -l)" -ge 20 ] || fail "only these headers were found: $headers"
    # Warnings about Qt's headers are not ours.
    flags=$(package_flags --cflags gliololok-shapekit | sed -E 's#-I(/[^ ]*/qt5)#-isystem \1#g')
    for compiler in g++ clang++; do
        echo "$headers" | compile_alone "$compiler" "$flags" || fail "not all headers compile with $compiler"
    done
}

# run_consumer PROGRAM: it says itself what went wrong.
run_consumer() {
    local output
    output=$("$1") || fail "the consumer failed: $output"
    [ "$output" = "all as expected" ] || fail "the consumer says: $output"
}

step_cmake_consumer() {
    local directory="$work/consumer-cmake"
    rm -rf "$directory"
    cmake -S "$source/tests/package/consumer" -B "$directory" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
    cmake --build "$directory" >/dev/null
    run_consumer "$directory/consumer"
}

step_pkgconfig_consumer() {
    local directory="$work/consumer-pkgconfig"
    mkdir -p "$directory"
    # shellcheck disable=SC2046
    "$CXX" -std=c++17 -Wall -Wextra -Werror -o "$directory/consumer" "$source"/tests/package/consumer/*.cpp \
        $(package_flags --cflags --libs gliololok)
    export LD_LIBRARY_PATH="$libraries"
    run_consumer "$directory/consumer"
}

# build_example NAME FOLDER COMPILER FLAGS: an example as its author builds it, without a warning.
build_example() {
    rm -rf "$2"
    cmake -S "$source/examples/$1" -B "$2" -G Ninja -DCMAKE_CXX_COMPILER="$3" -DCMAKE_CXX_FLAGS="$4" \
        -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
    cmake --build "$2" >/dev/null || fail "$1 does not build with $3 $4"
}

# board_takes NAME PLUGIN: the installed board must accept the plug-in of an example, without a word, and show its shape.
board_takes() {
    local plugins="$work/plugins-$1" pages="$work/pages-without-$1" pages_with="$work/pages-with-$1" output
    rm -rf "$plugins" "$pages" "$pages_with"
    mkdir -p "$plugins"
    cp "$2" "$plugins"
    "$prefix/bin/gliololok-board" --export "$pages" >/dev/null
    output=$("$prefix/bin/gliololok-board" --plugins "$plugins" --export "$pages_with" 2>&1 >/dev/null) ||
        fail "the installed board failed: $output"
    case $output in
    *"$1"*) fail "the board has something to say about the example: $output" ;;
    esac
    # The exported pages show every shape there is.
    ! diff -rq "$pages" "$pages_with" >/dev/null || fail "the pages do not show the example"
}

# An outside shape on the two bare base classes.
step_bare_example() {
    build_example bareshape "$work/bareshape" "$CXX" ""
    board_takes thinkingbubble "$work/bareshape/thinkingbubble.so"
}

# An outside shape on the kit, for the strictest of authors.
step_kit_example() {
    local compiler output
    for compiler in g++ clang++; do
        build_example speechbubble "$work/speechbubble-$compiler" "$compiler" \
            "-Wall -Wextra -Wpedantic -Wshadow -Werror"
        board_takes speechbubble "$work/speechbubble-$compiler/speechbubble.so"
        output=$("$prefix/bin/gliololok-shape" check "$work/speechbubble-$compiler/speechbubble.so") ||
            fail "the example breaks a promise: $output"
    done
}

# An application on the reference host: it saves two shapes, and opens what it has saved.
step_application() {
    local file="$work/two.board" first
    build_example application "$work/application" "$CXX" "-Wall -Wextra -Werror"
    rm -f "$file"
    export LD_LIBRARY_PATH="$libraries"
    [ "$("$work/application/application" "$file" --once)" = "2 shapes" ] || fail "it does not make two shapes"
    first=$(sha256sum <"$file")
    [ "$("$work/application/application" "$file" --once)" = "2 shapes" ] || fail "it does not open two shapes"
    [ "$(sha256sum <"$file")" = "$first" ] || fail "it does not save what it has opened"
}

# A project as the tool writes it builds against the package, and passes its own test.
step_new_project() {
    local directory="$work/new-project" output
    rm -rf "$directory"
    "$prefix/bin/gliololok-shape" new nut --cpp --dir "$directory" >/dev/null
    cmake -S "$directory/nut" -B "$directory/build" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
    cmake --build "$directory/build" >/dev/null || fail "the new project does not build"
    output=$(cd "$directory/build" && PATH="$prefix/bin:$PATH" ctest --output-on-failure 2>&1) ||
        fail "the new project does not pass: $output"
}

# Several shapes in one plug-in.
step_kit_two_shapes() {
    build_example ../tests/package/twoshapes "$work/twoshapes" "$CXX" ""
    board_takes twoshapes "$work/twoshapes/twoshapes.so"
}

# The kit without CMake: pkg-config names the library, the headers and the root object, which Qt's compiler completes.
step_kit_pkgconfig() {
    local directory="$work/kit-pkgconfig" flags libs plugin
    rm -rf "$directory"
    mkdir -p "$directory"
    flags=$(package_flags --cflags gliololok-shapekit)
    libs=$(package_flags --libs gliololok-shapekit)
    plugin=$(package_flags --variable=shapeplugin gliololok-shapekit)
    # shellcheck disable=SC2086,SC2046
    "$(package_flags --variable=host_bins Qt5Core)/moc" $(echo "$flags" | grep -oE -- '-[ID][^ ]+') "$plugin" \
        -o "$directory/shapeplugin.moc"
    # shellcheck disable=SC2086
    "$CXX" -std=c++17 -shared -o "$directory/speechbubble.so" -DSHAPEKIT_NAME='"speechbubble"' -I"$directory" \
        "$source/examples/speechbubble/speechbubble.cpp" "$plugin" $flags -Wl,--no-undefined $libs
}

# An application that brings its own host adds the repository to its build; the package then does not name our host.
step_other_host() {
    local directory="$work/other-host" output
    rm -rf "$directory"
    output=$(cmake -S "$source/tests/package/otherhost" -B "$directory" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DREPOSITORY="$source" -DHEADERS="$source/src/host" 2>&1) || fail "it cannot be configured: $output"
    [ ! -e "$directory/gliololok/tests" ] || fail "it builds our tests"
    ! grep -q '^CMAKE_BUILD_TYPE:[^=]*=.' "$directory/CMakeCache.txt" || fail "it has a kind of build that nobody asked for"
    ! grep -q -- -Werror "$directory/build.ninja" || fail "our warnings are its errors"
    ninja -C "$directory" -t query lib/gliololok.so.1.0.0 | grep -q otherhost_framework ||
        fail "the library is not linked to that host"
    ! grep -q -e -lframework -e -lsvgbase -e -rpath "$directory/gliololok/gliololok.pc" || fail "gliololok.pc names our host"
    grep -q -e '-lframework -lsvgbase' "$build/gliololok.pc" || fail "our own gliololok.pc lacks our host"
}

# refused TEXT ARGUMENT...: another host that is not given completely is refused with a sentence.
refused() {
    local directory="$work/other-host-refused" text=$1 output
    shift
    rm -rf "$directory"
    ! output=$(cmake -S "$source/tests/package/otherhost" -B "$directory" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" \
        -DREPOSITORY="$source" "$@" 2>&1) || fail "it is configured with $*"
    case $(echo "$output" | tr -s ' \n' ' ') in
    *"$text"*) ;;
    *) fail "it does not say \"$text\": $output" ;;
    esac
}

step_other_host_refused() {
    refused "your host's <framework/cbaseobject.h> is not found: set GLIOLOLOK_HOST_INCLUDE_DIRS"
    refused "there is no target OtherHost::nothing: set GLIOLOLOK_FRAMEWORK_TARGET" -DHEADERS="$source/src/host" \
        -DFRAMEWORK=OtherHost::nothing
}

# The installed board must find its libraries and its shapes without any help.
step_board() {
    local output
    rm -rf "$work/pages"
    output=$("$prefix/bin/gliololok-board" --export "$work/pages" 2>&1) || fail "the installed board failed: $output"
    ls "$work"/pages/*.png >/dev/null || fail "the installed board painted no page: $output"
}

# The commands of the documents, as their readers type them.
step_documents() {
    python3 "$source/tests/package/documents.py" "$prefix" "$CXX" || fail "a document's command"
}

# Manual pages and completions against the help of the programs.
step_manuals() {
    python3 "$source/tests/package/manuals.py" "$prefix" || fail "a manual page or a completion"
}

"step_$step"
