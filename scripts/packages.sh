# shellcheck shell=bash disable=SC2034 # read by the scripts that source this file
# Every package that the scripts install, and what it is for.

# To configure and build on this machine: the core, varnotool, the help, the tests and the benchmarks.
native_packages=(
    cmake
    ninja-build
    g++
    googletest
    nlohmann-json3-dev
    libcli11-dev
    libbenchmark-dev
    halibut
    python3
)

# To build varno.exe and its companions for 32-bit Windows, besides the packages above.
cross_packages=(
    g++-mingw-w64-i686-posix
)

# To show windows without a screen and to take pictures of them.
display_packages=(
    xvfb
    xdotool
    imagemagick
)

# To print without a printer and to look at what was printed.
printing_packages=(
    cups
    cups-client
    ghostscript
    poppler-utils
)

# To make the Wine root when no `wine` on the PATH runs a 32-bit program.
wine_root_tools=(
    mmdebstrap
    arch-test
    bubblewrap
)

# What goes into the Wine root: the release and its 32-bit packages. A change here makes a new root.
wine_root_suite=bookworm
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
