# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# The Debian packages that the scripts need, and how they are installed. To be sourced.
# shellcheck disable=SC2034  # The lists are read by the scripts that source this.
# shellcheck source=scripts/progress.sh
source "${BASH_SOURCE[0]%/*}/progress.sh"

packages_to_build=(
    g++ cmake ninja-build pkg-config
    libxcb1-dev libxcb-randr0-dev libxcb-screensaver0-dev libxcb-xfixes0-dev libxcb-xkb-dev
    libxkbcommon-dev libxkbcommon-x11-dev libexpat1-dev liblcms2-dev
    libwayland-dev libwayland-bin wayland-protocols qt6-wayland
    libglib2.0-dev libsystemd-dev nlohmann-json3-dev libexpected-dev qt6-base-dev
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
)

# A private X server whose displays exist only in memory.
packages_for_x_server=(xserver-xorg-core xserver-xorg-video-dummy x11-xserver-utils)

# What makes a desk of it: a window manager, and tools to move the pointer and take screenshots.
packages_for_desk=(openbox xdotool imagemagick fonts-dejavu-core)

packages_to_bench=(libbenchmark-dev libgtest-dev libxcb-xtest0-dev xxd)

packages_to_check=(
    x11-utils x11-xkb-utils
    git xvfb libgtest-dev libgmock-dev libbenchmark-dev libxcb-xtest0-dev
    clang clang-format clang-tidy libclang-rt-14-dev python3 procps shellcheck
    dbus python3-dbus python3-gi at-spi2-core python3-pyatspi iproute2 trayer
)

# What looks at installed files.
packages_to_validate=(appstream desktop-file-utils mandoc shared-mime-info systemd)

packages_to_package=(debhelper dpkg-dev lintian blhc devscripts)

is_installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# install_packages PACKAGE...: installs what is missing; without anything missing it needs neither
# the network nor any rights.
install_packages() {
    local package
    local missing=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This is not a Debian system; these packages, or what they are called here, must be" \
            "installed: $*" >&2
        return 0
    fi
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    if ((${#missing[@]} == 0)); then
        return 0
    fi
    echo "Installing with apt-get: ${missing[*]}"
    local as_root=()
    if ((EUID != 0)); then
        as_root=(sudo)
        # Asks for the password before a status line is in its way.
        sudo true || return
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive)
    with_progress "Looking for packages" "${as_root[@]}" apt-get -q update &&
        with_progress "Installing packages" "${as_root[@]}" \
            apt-get -q install -y --no-install-recommends "${missing[@]}"
}
