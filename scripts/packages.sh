# What ./run, ./check and the other scripts need on the machine, how it is found and installed. Sourced by them (bash).
# shellcheck shell=bash

# One need per line: GROUP|KIND|WHAT|LEAST VERSION|DEBIAN PACKAGE|WHAT FOR.
# KIND says what WHAT is: a command on the path, a library (a pkg-config module) or a file (a pattern of its path).
kNeeds='
build|command|g++|12|g++|the C++20 compiler
build|command|cmake|3.25|cmake|configures the build
build|command|ninja||ninja-build|runs the build
build|command|pkg-config||pkg-config|finds the libraries
build|library|Qt6Widgets|6.4|qt6-base-dev|windows, printing, settings
build|library|Qt6Svg|6.4|qt6-svg-dev|icons
build|library|sqlite3|3.40|libsqlite3-dev|the database
build|library|libutf8proc||libutf8proc-dev|names beyond ASCII
build|library|pugixml|1.13|libpugixml-dev|recipes in XML from other programs
build|library|nlohmann_json|3.11.2|nlohmann-json3-dev|recipes in JSON from other programs
tests|library|gtest||libgtest-dev|unit tests
tests|library|gmock||libgmock-dev|unit tests
tests|command|xmllint||libxml2-utils|checks exported XML
wayland|file|/usr/lib/*/qt6/plugins/platforms/libqwayland*||qt6-wayland|windows without an X server
vnc|command|Xvfb||xvfb|a display in memory
vnc|command|xauth||xauth|keeps other users off that display
vnc|command|x11vnc||x11vnc|serves the display
vnc|command|openbox||openbox|moves the windows
extended|command|clang++||clang|compiles the fuzzers
extended|file|/usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*||libclang-rt-14-dev|libFuzzer and its sanitizers
extended|command|clang-format-14||clang-format-14|the look of the sources
extended|command|run-clang-tidy-14||clang-tidy-14|static analysis
extended|library|benchmark||libbenchmark-dev|static analysis of the benchmarks
'

say() { printf '== %s\n' "$*"; }
fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# version_of KIND WHAT: prints the installed version of a command or library.
version_of() {
    case $1 in
    library) pkg-config --modversion "$2" ;;
    *) "$2" --version | grep -oE '[0-9]+(\.[0-9]+)+' | head -n 1 ;;
    esac
}

# has KIND WHAT LEAST: succeeds if the machine has it, in that version or a later one; an empty LEAST means any.
has() {
    case $1 in
    command) command -v "$2" >/dev/null ;;
    library) command -v pkg-config >/dev/null && pkg-config --exists "$2" ;;
    file) compgen -G "$2" >/dev/null ;;
    esac || return 1
    [ -z "$3" ] || printf '%s\n' "$3" "$(version_of "$1" "$2")" | sort -C -V
}

# missing GROUP...: prints those lines of kNeeds in these groups that the machine lacks.
missing() {
    local group kind what least package why
    while IFS='|' read -r group kind what least package why; do
        case " $* " in
        *" $group "*) has "$kind" "$what" "$least" || printf '%s\n' "$group|$kind|$what|$least|$package|$why" ;;
        esac
    done < <(printf '%s' "$kNeeds" | grep .)
}

# describe LINES: prints a readable line for each of these lines of kNeeds to standard error.
describe() {
    local group kind what least package why
    while IFS='|' read -r group kind what least package why; do
        printf '  %s %s%s: %s (Debian package %s)\n' "$kind" "$what" "${least:+ $least or later}" "$why" "$package" >&2
    done <<<"$1"
}

# as_root COMMAND...: runs the command as root, through sudo if needed; ends the script if there is no sudo.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "not root, and there is no sudo. As root, run: $*"
    fi
}

apt() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 "$@" </dev/null >/dev/null; }

# apt_install PACKAGE...: installs the packages; updates the package lists first if they are missing or out of date.
apt_install() {
    local package known=yes
    for package in "$@"; do
        apt-cache show --no-all-versions "$package" >/dev/null 2>&1 || known=''
    done
    if [ -n "$known" ] && apt install -y --no-install-recommends "$@"; then
        return
    fi
    apt update
    apt install -y --no-install-recommends "$@"
}

# install_needs GROUP...: installs what these groups need, or lists what is missing and ends the script.
install_needs() {
    local lacking packages
    lacking=$(missing "$@")
    [ -n "$lacking" ] || return 0
    if ! command -v apt-get >/dev/null; then
        printf 'There is no apt-get here to install what is missing:\n' >&2
        describe "$lacking"
        fail 'please install these and start again.'
    fi
    mapfile -t packages < <(printf '%s\n' "$lacking" | cut -d'|' -f5 | sort -u)
    say "Installing ${packages[*]}"
    apt_install "${packages[@]}" || fail 'the packages could not be installed.'
    hash -r
    lacking=$(missing "$@")
    [ -z "$lacking" ] && return 0
    printf 'Still missing, or too old, after installing:\n' >&2
    describe "$lacking"
    fail 'please install these and start again.'
}

# configure PRESET: makes its build folder; the output of cmake goes into a log there, and is shown if cmake fails.
configure() {
    local log=build/$1/configure.log
    mkdir -p "build/$1"
    cmake --preset "$1" >"$log" 2>&1 || {
        cat "$log" >&2
        fail "preset $1 cannot be configured."
    }
}

# build PRESET: configures and builds it.
build() {
    say "Building (preset $1)"
    configure "$1"
    cmake --build --preset "$1" || fail "preset $1 does not build."
}
