#!/usr/bin/env bash
# Installs what is missing, builds in Release and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")"
# The tests read the reports' workbooks back with openpyxl.
scripts/preparar.sh python3-openpyxl
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)" "$@"
