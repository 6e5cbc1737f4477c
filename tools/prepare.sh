# Sourced by run, test, tools/lint and tools/screenshots: functions that install missing packages and
# build. Sets `root`, the project's folder.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt-advanced-docking-system-dev
    libspdlog-dev libsqlite3-dev libproj-dev proj-data libgdal-dev libxlsxwriter-dev
    libqwt-qt5-dev libqt5svg5-dev
    libnanoflann-dev
    libgtest-dev libbenchmark-dev
)
run_packages=(
    libqt5svg5 qttranslations5-l10n breeze-icon-theme fonts-dejavu-core fonts-noto-cjk
)
test_packages=(locales poppler-utils)
lint_packages=(clang-format clang-tidy)

# install_packages NAME...: installs those that are missing.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system: make sure that the counterparts of these are there: $*" >&2
        return
    fi
    local missing=() name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    echo "Installing packages: ${missing[*]}"
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: configures when needed, and builds.
build() {
    local preset=$1
    shift
    cd "$root"
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" --log-level=WARNING
    # One job per processor, since a job takes up to a gigabyte of memory.
    local jobs=(--parallel "$(nproc)") targets=()
    [ $# -eq 0 ] || targets=(--target "$@")
    # Precompiled headers contain times; without these settings ccache would find nothing.
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime \
        cmake --build "build/$preset" "${jobs[@]}" "${targets[@]}"
}
