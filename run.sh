#!/usr/bin/env bash
# Installs what is missing, builds in Release and starts the desktop program.
set -euo pipefail
cd "$(dirname "$0")"
scripts/preparar.sh
exec build/fontaria "$@"
