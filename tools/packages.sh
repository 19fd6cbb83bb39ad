# What the machine must have, by Debian package. Sourced by ./run, ./test and the scripts beside.

build_packages="g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libgl-dev nlohmann-json3-dev libsdl2-dev libpng-dev libpugixml-dev libsecret-1-dev pkg-config"
run_packages="qt6-qpa-plugins fonts-dejavu-core xdg-utils"
package_packages="dpkg-dev"
test_packages="libgtest-dev qt6-base-private-dev libx11-dev xvfb xauth xdotool x11-utils imagemagick strace poppler-utils sox multimon-ng direwolf dbus-daemon at-spi2-core orca libhamlib-utils gnome-keyring"
check_packages="clang-format-14 clang-tidy-14"
prompt_packages="espeak-ng sox"

# Installs what is missing of the named packages, as root or through sudo; says nothing when all are there.
install_packages() {
    missing=""
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing, and there is no sudo to install them:$missing" >&2
            return 1
        }
        as_root="sudo"
    fi
    echo "Installing:$missing"
    $as_root apt-get update -qq &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}
