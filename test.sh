#!/usr/bin/env bash
# Installs what is missing, builds in Release and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")"
scripts/preparar.sh
# The workbook tests read the written .xlsx files back with openpyxl, which
# only the tests need.
if ! dpkg-query -W -f='${Status}' python3-openpyxl 2>/dev/null | grep -q "install ok installed"; then
  echo "Instalando: python3-openpyxl"
  SUDO=""
  if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $SUDO apt-get update -qq
  $SUDO apt-get install -y -qq --no-install-recommends python3-openpyxl
fi
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)" "$@"
