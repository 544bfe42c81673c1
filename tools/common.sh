# What the command scripts share: the Debian packages that are needed, by purpose, and how they get here; how a
# step is run. To be sourced from the project's folder.

packages_build="cmake ninja-build g++ qt6-base-dev libturbojpeg0-dev libgtest-dev libicu-dev fonts-dejavu-core"
packages_display="xvfb openbox dbus-daemon at-spi2-core xdotool"
packages_drive="$packages_display python3-pyatspi gir1.2-atspi-2.0 imagemagick poppler-utils"
packages_lint="clang-format clang-tidy cppcheck"
packages_bench="$packages_display libxcb1-dev"
packages_fuzz="clang libclang-rt-dev llvm"
packages_package="dpkg-dev file lintian desktop-file-utils appstream"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends "$@"
}

# Installs whatever of the named packages is not there yet, and is silent and quick where nothing is missing. A
# system without apt-get has them under names of its own; what is missing there, the next command tells.
ensure_packages() {
    local installed package missing=()
    if ! command -v apt-get >/dev/null; then
        echo "Needed, by Debian's names: $*"
        return
    fi
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        grep -qx "$package installed" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    quietly "Installing from Debian: ${missing[*]}" install_packages "${missing[@]}"
}

# Runs a command quietly under the name of what it does, and says how long it took. Its output is shown only if
# it fails, and then ends the script.
quietly() {
    local what=$1 log start=$SECONDS
    shift
    log=$(mktemp)
    printf '%s ... ' "$what"
    if "$@" >"$log" 2>&1; then
        echo "$((SECONDS - start)) s"
        rm -f "$log"
    else
        echo "FAILED"
        cat "$log"
        rm -f "$log"
        exit 1
    fi
}

# Waits half a minute at most for a command to succeed.
wait_for() {
    for _ in {1..300}; do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    echo "Waited in vain for: $*" >&2
    return 1
}

# Configures a preset and builds it, or only the named target of it.
build() {
    quietly "Building ${2:-everything} in build/$1" \
        bash -c "cmake --preset $1 && cmake --build --preset $1 ${2:+--target $2}"
}

# Runs one of the scripts that drive the program, on a display of its own.
drive() {
    tools/display.sh /usr/bin/python3 tools/"$@"
}
