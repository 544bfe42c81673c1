# The Debian packages that building, testing, driving and packaging need, by purpose, and how they get here.
# Sourced by common.sh.

packages_build="cmake ninja-build g++ qt6-base-dev libturbojpeg0-dev libgtest-dev fonts-dejavu-core"
packages_display="xvfb openbox dbus-daemon at-spi2-core xdotool"
packages_drive="$packages_display python3-pyatspi gir1.2-atspi-2.0 imagemagick poppler-utils"
packages_lint="clang-format clang-tidy cppcheck"
packages_bench="$packages_display libbenchmark-dev libxcb1-dev bsdextrautils"
packages_fuzz="clang libclang-rt-dev llvm"
packages_package="dpkg-dev lintian desktop-file-utils appstream"
packages_longday="$packages_bench"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs whatever of the named packages is not there yet, and is silent and quick where nothing is missing.
ensure_packages() {
    local installed package missing=()
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        grep -qx "$package installed" <<<"$installed" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    quietly "Installing from Debian: ${missing[*]}" install_packages "${missing[@]}"
}

install_packages() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends "$@"
}
