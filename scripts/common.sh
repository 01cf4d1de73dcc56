# Functions shared by run, test and the scripts. Sourced by bash with the repository root in $root.

jobs=$(nproc)

say() { printf '\n== %s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# packages_of GROUP...: the packages of these groups, one per line.
packages_of() {
    local group
    for group in "$@"; do
        sed -n "s/^$group: *//p" "$root/scripts/packages.txt" | tr ' ' '\n'
    done | sort -u
}

is_installed() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# as_root COMMAND...: runs it directly as root, through sudo for other users.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# install_packages GROUP...: installs the missing packages of these groups, and lists them.
install_packages() {
    if ! command -v apt-get >/dev/null; then
        say "This is not a Debian system: nothing is installed. Required packages: $(packages_of "$@" | tr '\n' ' ')"
        return
    fi
    local package missing=()
    for package in $(packages_of "$@"); do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return

    say "Installing ${missing[*]}"
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        fail "Neither root nor sudo. Ask an administrator for: apt-get install ${missing[*]}"
    fi
    as_root apt-get update -q || fail "apt-get update failed."
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" ||
        fail "apt-get could not install the packages."
}

# prepare COMMAND: installs and builds the requirements of a command. Packages, preset and targets of each are decided here alone.
prepare() {
    case $1 in
    run)
        install_packages build run
        build board board
        ;;
    test)
        install_packages build test
        build release
        ;;
    test-sanitized)
        install_packages build test
        build asan
        ;;
    test-threads)
        install_packages build test
        build tsan
        ;;
    fuzz)
        install_packages build test fuzz
        build fuzz fuzzers
        ;;
    *) fail "No requirements are known for '$1'." ;;
    esac
}

# build_failed PRESET: compilers whose disk is full often end without a word.
build_failed() {
    local free
    free=$(df --output=avail -h "$root" | tail -n 1)
    fail "The $1 build failed. The disk has ${free// /} left."
}

# build PRESET [TARGET...]: configures and builds; without targets, everything.
build() {
    local preset=$1
    shift
    say "Configuring the $preset build in build/$preset"
    (cd "$root" && cmake --preset "$preset") || fail "The $preset build could not be configured."
    say "Building ($jobs jobs)"
    cmake --build "$root/build/$preset" --parallel "$jobs" ${1:+--target "$@"} || build_failed "$preset"
}
