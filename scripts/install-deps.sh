#!/bin/sh
# Installs the Debian packages that building and testing Quorix needs; silent if all are there.
# "install-deps.sh extra" also installs what the benchmark anchors and the fuzz run use.
set -e
PKGS="cmake ninja-build g++ pkg-config qt6-base-dev qt6-svg-dev zlib1g-dev libzip-dev
libpng-dev libjpeg-dev libgif-dev libgtest-dev libgmock-dev libgmp-dev libmuparser-dev fonts-dejavu-core
libgl1-mesa-dev"
if [ "$1" = "extra" ]; then
  PKGS="$PKGS clang pari-gp"
fi
MISSING=""
for p in $PKGS; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || MISSING="$MISSING $p"
done
[ -z "$MISSING" ] && exit 0
if [ "$(id -u)" -ne 0 ]; then
  echo "Fehlende Pakete:$MISSING" >&2
  echo "Bitte als root ausführen: apt-get install$MISSING" >&2
  exit 1
fi
echo "Installiere:$MISSING"
DEBIAN_FRONTEND=noninteractive apt-get update -qq
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $MISSING
