# What ./run and ./test share: the Debian packages they need, and the build. Sourced, not run.

RUN_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev zlib1g-dev libsqlite3-dev libgrpc++-dev libprotobuf-dev
    protobuf-compiler protobuf-compiler-grpc libxlsxwriter-dev qt6-tools-dev
    qt6-l10n-tools qt6-translations-l10n libc-bin fonts-nanum)
TEST_PACKAGES=(libgtest-dev libgmock-dev clang-format python3)

say() { printf '\033[1m==> %s\033[0m\n' "$*" >&2; }

fail() {
    printf '%s\n' "$*" >&2
    exit 2
}

# Installs the packages among the arguments that are missing.
need_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "Needs root once, to run: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures a preset where it isn't yet and builds the targets that follow (all of them with none).
build() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "Configuring $preset"
        cmake --preset "$preset"
    fi
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    # ninja says nothing when there is nothing to do, and counts its steps when there is.
    if ! ninja -C "build/$preset" -n "$@" 2>/dev/null | grep -q 'no work to do'; then say "Building $preset"; fi
    NINJA_STATUS='[%f/%t %es] ' cmake --build "build/$preset" "${targets[@]}" | grep -v -e 'no work to do' -e 'Entering directory' || [ "${PIPESTATUS[0]}" -eq 0 ]
}
