# SPDX-License-Identifier: GPL-3.0-or-later
# What run, test and .ci/run have in common: packages, builds, and how a failure is told.
# Sourced by them with the clone as current folder.

# What the build, the program and its tests need beyond a bare Debian.
packages=(
    g++ cmake ninja-build
    qt6-base-dev qt6-svg-dev qt6-qpa-plugins libqcustomplot-dev zlib1g-dev libcurl4-openssl-dev
    libgtest-dev librapidcheck-dev libbenchmark-dev
    breeze-icon-theme fonts-dejavu-core fonts-liberation xdg-utils
    poppler-utils  # tests read printed pages back with it
    desktop-file-utils appstream  # tests validate what desktops and software centres read
)

# Builds of several presets share what they can, where ccache is there; precompiled headers are
# cached only where it is told to trust them.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
fi

Fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints those of the named packages that are not installed.
MissingPackages() {
    local installed package
    installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' "$@" 2>/dev/null | grep '^ii ')
    for package in "$@"; do
        grep -qxF "ii  $package" <<<"$installed" || printf '%s\n' "$package"
    done
}

# Runs apt-get as root, without questions; waits for another package manager to finish.
AptGet() {
    local asRoot=()
    if [[ $(id -u) -ne 0 ]]; then asRoot=(sudo); fi
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -y -q -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

# Installs those of the named packages that are missing. The package lists are fetched only where
# the ones at hand do not do.
InstallPackages() {
    local missing log=build/setup.log
    if ! command -v dpkg-query >/dev/null; then return 0; fi
    mapfile -t missing < <(MissingPackages "$@")
    if [[ ${#missing[@]} -eq 0 ]]; then return 0; fi
    if [[ $(id -u) -ne 0 ]] && ! command -v sudo >/dev/null; then
        Fail "these packages are missing, and without sudo only root can install them:
  apt-get install --no-install-recommends ${missing[*]}"
    fi
    printf 'Installing %s\n' "${missing[*]}"
    mkdir -p build
    AptGet install --no-install-recommends "${missing[@]}" >"$log" 2>&1 && return 0
    if AptGet update >>"$log" 2>&1 &&
        AptGet install --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
        return 0
    fi
    tail -n 15 "$log" >&2
    Fail "the packages could not be installed; $log tells more"
}

# Configures a preset where that has not been done yet, or was done in another folder.
Configure() {
    local preset=$1 log=build/configure-$1.log cache=build/$1/CMakeCache.txt fresh=()
    if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache"; then
        fresh=(--fresh)
    elif [[ -f build/$preset/build.ninja ]]; then
        return 0
    fi
    mkdir -p build
    if ! cmake "${fresh[@]}" --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        Fail "the $preset build could not be configured"
    fi
}

# Builds the targets of a preset. Progress is shown where somebody watches, failures always.
Build() {
    local preset=$1
    shift
    Configure "$preset"
    local ninja=(ninja -C "build/$preset")
    if "${ninja[@]}" -n "$@" 2>/dev/null | grep -q 'no work to do'; then return 0; fi
    printf 'Building %s\n' "$preset"
    if [[ ! -t 1 ]]; then ninja+=(--quiet); fi
    "${ninja[@]}" "$@" || Fail "the $preset build failed"
}

# Prints "passed failed skipped" of a GoogleTest report.
CountReport() {
    awk '
        /"result": "/ { Flush(); open = 1; skipped = /"SKIPPED"/; counts = !/"SUPPRESSED"/ }
        /"failures": \[/ { broken = 1 }
        function Flush() {
            if (open && counts) { if (broken) failed++; else if (skipped) left++; else passed++ }
            open = broken = 0
        }
        END { Flush(); print passed + 0, failed + 0, left + 0 }
    ' "$1"
}

# Counts the tests of the named programs by the reports in a folder, and prints the sum as the last
# line. A program that crashed, was stopped or left no report is one failed test; a script, named
# *_script, leaves none and is one test. Fails where a test failed or there was none.
CountResults() {
    local folder=$1 program passed=0 failed=0 skipped=0 counts
    shift
    for program in "$@"; do
        counts=(0 0 0)
        if [[ -f $folder/$program.json ]]; then
            read -ra counts < <(CountReport "$folder/$program.json")
        elif [[ $program == *_script ]]; then
            counts=(1 0 0)
        fi
        if grep -qE "Test +#[0-9]+: $program +\.*.*Passed" "$folder/ctest.log"; then
            # A program that ended well before its last test wrote no report.
            if [[ ${counts[*]} == "0 0 0" ]]; then counts=(0 1 0); fi
        elif [[ ${counts[1]} -eq 0 ]]; then
            counts[1]=1
            if [[ $program == *_script ]]; then counts[0]=0; fi
        fi
        passed=$((passed + counts[0]))
        failed=$((failed + counts[1]))
        skipped=$((skipped + counts[2]))
    done
    printf '%d passed, %d failed' "$passed" "$failed"
    if [[ $skipped -gt 0 ]]; then printf ', %d skipped' "$skipped"; fi
    printf '\n'
    [[ $failed -eq 0 && $((passed + skipped)) -gt 0 ]]
}
