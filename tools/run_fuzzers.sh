#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the fuzz targets with clang and feeds each so many inputs, from real files as seeds:
#   tools/run_fuzzers.sh [--runs 100000] [--real FOLDER] [target...]
# FOLDER holds real draw histories and, in operator-files/, results pages. What is found lies in
# build/fuzz/found; the corpus grows in build/fuzz/corpus and is used again.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/setup.sh

runs=100000
real=../shared/real-draws
while [[ ${1:-} == --* ]]; do
    case $1 in
    --runs) runs=${2:?--runs needs a number} ;;
    --real) real=${2:?--real needs a folder} ;;
    *) Fail "what is $1?" ;;
    esac
    shift 2
done

InstallPackages "${packages[@]}" clang
build=build/fuzz
if [[ ! -f $build/build.ninja ]]; then
    cmake -B $build -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 \
        -DCMAKE_CXX_COMPILER=clang++ -DQUILLON_FUZZERS=ON -DQUILLON_BENCHMARKS=OFF \
        -DQUILLON_PRECOMPILE=OFF >build/configure-fuzz.log 2>&1 || Fail 'clang could not be configured'
fi
ninja -C $build --quiet fuzzers || Fail 'the fuzz targets could not be built'

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
    esac
}

mapfile -t targets < <(
    if [[ $# -gt 0 ]]; then printf '%s\n' "$@"; else basename -s .cpp fuzz/fuzz_*.cpp; fi
)
found=0
for target in "${targets[@]}"; do
    corpus=$build/corpus/$target
    mapfile -t seeds < <(SeedsOf "$target")
    Seed "$corpus" "${seeds[@]}"
    mkdir -p $build/found
    log=$build/found/$target.log
    "$build/fuzz/$target" -runs="$runs" -timeout=20 -rss_limit_mb=1024 -print_final_stats=1 \
        -verbosity=1 -artifact_prefix="$build/found/$target-" "$corpus" >"$log" 2>&1
    status=$?
    executed=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    if [[ $status -eq 0 ]]; then
        printf '%s: %s runs, nothing found\n' "$target" "$executed"
    else
        printf '%s: FOUND something after %s runs; see %s\n' "$target" "${executed:-?}" "$log"
        found=$((found + 1))
    fi
done
[[ $found -eq 0 ]]
