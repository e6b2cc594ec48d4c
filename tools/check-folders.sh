#!/bin/bash
# Fails if folders of src/ include each other, directly or by way of others, and names them.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."

grep -rE --include='*.h' --include='*.cpp' '^#include "[a-z_]+/' src |
    sed -E 's|^src/([^/]*)/.*:#include "([a-z_]+)/.*|\1 \2|' | sort -u | tsort >/dev/null
echo "No two folders of src/ include each other."
