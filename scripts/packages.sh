# shellcheck shell=bash disable=SC2034 # read by the scripts that source this file
# Every package that the scripts install, and what it is for.

# To build varno.exe, its companions and its help for 32-bit Windows.
build_packages=(
    cmake
    ninja-build
    g++-mingw-w64-i686-posix
    halibut
    python3
)

# For varnotool, here and for Windows.
tool_packages=(
    nlohmann-json3-dev
    libcli11-dev
)

# What the tests need besides.
test_packages=(
    g++
    googletest
    "${tool_packages[@]}"
    parallel
)

# For varno-setup.exe, the installer, which brings varnotool too.
setup_packages=(
    nsis
    "${tool_packages[@]}"
)

# For the benchmarks (preset native-release).
bench_packages=(
    libbenchmark-dev
)

# What they measure beside ours, where the machine's release has it.
peer_packages=(
    cba
)

# To run the readers under libFuzzer, which is clang's.
fuzz_packages=(
    clang
    libclang-rt-dev
)

# To look through the source for mistakes.
lint_packages=(
    clang-tidy
    cppcheck
)

# To show windows without a screen and to take pictures of them.
display_packages=(
    xvfb
    xdotool
    imagemagick
)

# To see how windows stand where a window manager runs.
window_manager_packages=(
    openbox
)

# To print without a printer and to look at what was printed.
printing_packages=(
    cups
    cups-client
    ghostscript
    poppler-utils
)

# For a Wine that was on the machine before: the locales that ours are made of, and the faces that stand in for Windows'.
host_wine_packages=(
    locales
    fonts-liberation
)

# To make the Wine root when no Wine of the machine's own will do.
wine_root_tools=(
    mmdebstrap
    arch-test
    bubblewrap
)

# What goes into the Wine root: the release and its 32-bit packages. A change here makes a new root. It is Debian 12 on
# every Debian: that Wine also runs as it lies, which Debian 13's does not ("failed to load l_intl.nls"). Ubuntu's mirrors
# carry no Debian, so its own release serves there.
read -r wine_root_suite wine_root_components < <(
    # shellcheck source=/dev/null
    source /etc/os-release 2>/dev/null || true
    if [[ ${ID:-} == ubuntu || " ${ID_LIKE:-} " == *" ubuntu "* ]]; then
        printf '%s main,universe\n' "${UBUNTU_CODENAME:-noble}"
    else
        printf 'bookworm main\n'
    fi
)
wine_root_packages=(
    wine
    wine32
    libcups2
    libxcursor1
    libxrender1
    libxcomposite1
    libxrandr2
    libxi6
    libxinerama1
    libxfixes3
    fonts-liberation
    fonts-wine
    locales
)

# To render packaging/varno.ico anew; neither ./run nor ./test does.
icon_packages=(
    librsvg2-bin
    icoutils
)
