#!/bin/bash
# What the tests of nfe_summary, which read it, have in common: their arguments are PROGRAM and
# DATA_FOLDER, they have a folder to write in, and they end with whether a fault was told.
set -euo pipefail
export LC_ALL=C.UTF-8
unset LANGUAGE
# shellcheck disable=SC2034 # for those that read this
program=$1 data=$2
folder=$(mktemp -d)
trap 'chmod -R u+rwx "$folder"; rm -r "$folder"' EXIT
failed=0

fault() {
    echo "$*" >&2
    # shellcheck disable=SC2034
    failed=1
}
