# Shared by ./run and ./test: packages, configuration and building. Sourced, not run.

run_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-webengine-dev qt6-wayland libqt6svg6 libqt6webenginecore6-bin
    libgl-dev libgtest-dev libbenchmark-dev xdg-utils fonts-dejavu-core
    openjdk-17-jdk-headless esbuild
)
test_packages=(clang-format openjdk-17-jre xvfb xauth)
desktop_packages=(desktop-file-utils shared-mime-info appstream mandoc lintian dpkg-dev file)

# Installs the packages that are missing, as root or by sudo; a machine that has all is not asked.
install_packages() {
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    echo "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing and sudo is not there to install them." >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET TARGET...: configures when needed and builds the targets.
build() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" --target "$@"
}

# Every source stands as the formatter leaves it.
format_check() {
    git ls-files -- '*.cpp' '*.h' '*.cc' '*.java' | xargs -r clang-format --dry-run --Werror
}
