# Shared by ./run, ./test, tools/bench and .ci/run: says what is going on, installs what is missing, builds.
# Sourced, not run. The caller has changed into the project's folder and set -eu.

say() { printf '\033[1m==> %s\033[0m\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# What building and running the product needs, as Debian packages.
build_packages=(
    g++ cmake ninja-build pkg-config
    qtbase5-dev qtwebengine5-dev libqt5webchannel5-dev libqt5svg5-dev libqt5x11extras5-dev libxcb1-dev
    qttools5-dev-tools qtmultimedia5-dev libqt5multimedia5-plugins gstreamer1.0-plugins-good gstreamer1.0-plugins-bad
    libprotobuf-dev protobuf-compiler libboost-dev libssl-dev
    libavcodec-dev libavutil-dev libyuv-dev libx264-dev libsqlite3-dev libyaml-cpp-dev
    fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji fonts-dejavu-core
)
# What a virtual display needs.
display_packages=(xvfb openbox xdotool x11-utils libgl1-mesa-dri)
# What the tests need besides.
test_packages=(libgtest-dev libgmock-dev libxcb-xtest0-dev python3 dpkg-dev file)
# What the checks of the Windows client need (1.1 GB); they are skipped without it.
windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 nsis openssl)

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "packages are missing and neither root nor sudo is at hand; install them yourself: ${missing[*]}"
    fi
}

# install_packages PACKAGE...: installs those that are missing. Node.js counts as there when its commands are,
# whoever packaged it.
install_packages() {
    missing=()
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    command -v node >/dev/null || missing+=(nodejs)
    command -v npm >/dev/null || missing+=(npm)
    [ ${#missing[@]} = 0 ] && return
    command -v apt-get >/dev/null || fail "this is not a Debian system; please install: ${missing[*]}"
    say "Installing ${#missing[@]} missing packages: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { as_root apt-get update -q && as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 30 "$log" >&2
        fail "the packages could not be installed (whole output: $log)"
    fi
    rm -f "$log"
}

# build PRESET [TARGET...]: configures and builds; extra settings come from the array cmake_settings.
build() {
    local preset=$1 targets=()
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    say "Configuring build/$preset"
    mkdir -p build
    # What was compiled before, here or in another clone, is not compiled again.
    command -v ccache >/dev/null && cmake_settings+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake --preset "$preset" ${cmake_settings[@]+"${cmake_settings[@]}"} >"build/configure-$preset.log" 2>&1 \
        || { cat "build/configure-$preset.log" >&2; fail "configuring failed"; }
    say "Building build/$preset (the first time takes some minutes)"
    cmake --build "build/$preset" ${targets[@]+"${targets[@]}"}
}
