#!/bin/sh
# Runs every benchmark (or only bench_$1) and prints "<measure>\t<Quorix>\t<anchor>\t<ratio>".
cd "$(dirname "$0")"
printf 'Messgröße\tQuorix\tVergleich\tVerhältnis\n'
for b in bench_*; do
  [ -x "$b" ] || continue
  if [ -n "$1" ] && [ "$b" != "bench_$1" ]; then continue; fi
  QT_QPA_PLATFORM=offscreen ./"$b" || echo "$b\tFEHLER\t-\t-"
done
