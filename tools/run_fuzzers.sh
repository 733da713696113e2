#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the fuzz targets with clang and feeds each so many inputs, from real files as seeds:
#   tools/run_fuzzers.sh [--runs 100000] [--jobs 2] [--real FOLDER] [target...]
# as many targets at once as --jobs says, or as the computer has processors. FOLDER holds real draw
# histories and, in operator-files/, results pages. What is found lies in build/fuzz/found; the corpus
# grows in build/fuzz/corpus and is used again. Ten million runs take the slowest target an hour.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/setup.sh

runs=100000
jobs=$(nproc)
real=../shared/real-draws
while [[ ${1:-} == --* ]]; do
    case $1 in
    --runs) runs=${2:?--runs needs a number} ;;
    --jobs) jobs=${2:?--jobs needs a number} ;;
    --real) real=${2:?--real needs a folder} ;;
    *) Fail "what is $1?" ;;
    esac
    shift 2
done

InstallPackages "${packages[@]}" clang libclang-rt-dev
build=build/fuzz
mkdir -p $build
if [[ ! -f $build/build.ninja ]]; then
    cmake -B $build -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 \
        -DCMAKE_CXX_COMPILER=clang++ -DQUILLON_FUZZERS=ON -DQUILLON_BENCHMARKS=OFF \
        -DQUILLON_PRECOMPILE=OFF >build/configure-fuzz.log 2>&1 || Fail 'clang could not be configured'
fi
ninja -C $build --quiet fuzzers >$build/fuzzers.log 2>&1 || {
    cat $build/fuzzers.log >&2
    Fail 'the fuzz targets could not be built'
}

# Copies the files that a target may read into its corpus, each under the name of its bytes.
Seed() {
    local corpus=$1 file
    shift
    mkdir -p "$corpus"
    for file in "$@"; do
        [[ -f $file ]] && cp "$file" "$corpus/$(sha1sum <"$file" | cut -c 1-40)"
    done
}

# Prints the files a target is seeded with.
SeedsOf() {
    printf '%s\n' fuzz/seeds/"$1"/*
    case $1 in
    fuzz_database) printf '%s\n' data/dbase*.txt "$real"/dbase*.txt ;;
    fuzz_lottery_templates) printf '%s\n' data/LotteryTemplates.txt ;;
    fuzz_lottery_info) printf '%s\n' 'data/Lottery Info.txt' ;;
    fuzz_wheel49) printf '%s\n' data/wheel49.dat ;;
    fuzz_uk_results) printf '%s\n' "$real"/operator-files/{uk,au}_* ;;
    fuzz_us_results) printf '%s\n' "$real"/operator-files/us_* ;;
    fuzz_import) printf '%s\n' "$real"/operator-files/*_* ;;
    esac
}

# The bytes that an input has at most: a whole file where its end counts, else a short one, which
# says as much and is read faster.
LengthOf() {
    case $1 in
    fuzz_syndicate | fuzz_wheel49) echo 4096 ;;
    *) echo 2048 ;;
    esac
}

# Feeds one target its seeds as they are and then so many inputs made of them, and tells of it.
Feed() {
    local target=$1 corpus=$build/corpus/$1 log=$build/found/$1.log seeds
    mapfile -t seeds < <(SeedsOf "$target")
    Seed "$corpus" "${seeds[@]}"
    local feed=("$build/fuzz/$target" -timeout=20 -rss_limit_mb=2048
        -artifact_prefix="$build/found/$target-" -verbosity=1)
    if "${feed[@]}" -runs=0 "$corpus" >"$log" 2>&1 &&
        "${feed[@]}" -runs="$runs" -max_len="$(LengthOf "$target")" -print_final_stats=1 \
            "$corpus" >"$log" 2>&1; then
        printf '%s: %s runs, nothing found\n' "$target" "$(Executed "$log")"
    else
        printf '%s: FOUND something after %s runs; see %s\n' "$target" "$(Executed "$log")" "$log"
        return 1
    fi
}

Executed() { sed -n 's/^stat::number_of_executed_units: *//p' "$1"; }

mapfile -t targets < <(
    if [[ $# -gt 0 ]]; then printf '%s\n' "$@"; else basename -s .cpp fuzz/fuzz_*.cpp; fi
)
mkdir -p $build/found
# Short traces of allocations and a small quarantine: twice to five times as many inputs a second.
export ASAN_OPTIONS=${ASAN_OPTIONS:-malloc_context_size=2:quarantine_size_mb=16}
status=0
running=0
for target in "${targets[@]}"; do
    if [[ $running -ge $jobs ]]; then
        wait -n || status=1
        running=$((running - 1))
    fi
    Feed "$target" &
    running=$((running + 1))
done
while [[ $running -gt 0 ]]; do
    wait -n || status=1
    running=$((running - 1))
done
exit "$status"
