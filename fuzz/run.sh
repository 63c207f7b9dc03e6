#!/bin/sh
# Builds the term fuzz target with libFuzzer, AddressSanitizer and UndefinedBehaviorSanitizer and
# runs it for a bounded time: fuzz/run.sh [seconds] (default 60). Exit 0 if nothing was found.
set -e
ROOT="$(cd "$(dirname "$0")/.." && pwd)"
SECONDS_TO_RUN="${1:-60}"
OUT="${FUZZ_BUILD:-$ROOT/build-fuzz}"
mkdir -p "$OUT/corpus"
CXX="${CXX_FUZZ:-clang++}"
echo "Übersetze das Fuzz-Ziel nach $OUT ..."
"$CXX" -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined \
  -I"$ROOT" "$ROOT/fuzz/term_fuzz.cpp" \
  $(ls "$ROOT"/kernel/term*.cpp | grep -v termcommands) -o "$OUT/term_fuzz"
# A few seeds so the run starts from real terms.
i=0
for t in "SIN(X)+P*X^2" "SQRT(ABS(X))*EXP(-X^2/2)" "(X+1)/(X-1)" "2^3^2" "[-2.5]+|X|" "5~2" \
         "F1(X)+1
X^2" "3;4+P" "GAMMA(X)*BETA(2)" "Z*Z+I" "LOG(8)" "X^X" "ARCCOT(0)" "EULERPHI(12)"; do
  i=$((i+1))
  printf '\001%s' "$t" > "$OUT/corpus/seed$i"
done
echo "Fuzzing für $SECONDS_TO_RUN s ..."
UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
"$OUT/term_fuzz" "$OUT/corpus" -max_total_time="$SECONDS_TO_RUN" -timeout=10 -max_len=512 \
  -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$OUT/"
