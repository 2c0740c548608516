#!/usr/bin/env bash
# Installs with apt-get what the build needs and is missing, saying what it
# installs, then configures and builds in Release under build/.  Packages
# named as arguments are added to the list (those only the tests need).
set -euo pipefail
cd "$(dirname "$0")/.."

PAQUETES=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libsqlite3-dev
          libgtest-dev googletest libbenchmark-dev libeigen3-dev fonts-dejavu-core
          qt6-translations-l10n libopencv-imgproc-dev libopencv-photo-dev poppler-utils
          libxlsxwriter-dev libzip-dev qt6-svg-dev "$@")

faltan=()
for p in "${PAQUETES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    faltan+=("$p")
  fi
done
if [ ${#faltan[@]} -gt 0 ]; then
  echo "Instalando: ${faltan[*]}"
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends "${faltan[@]}"
else
  echo "Paquetes necesarios: todos instalados."
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j "$(nproc)"
