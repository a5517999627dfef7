#!/usr/bin/env bash
# Lists the C++ files of the checkout whose layout differs from .clang-format and exits 1 if
# there are any (0 when every file is formatted). Reformat with: clang-format-14 -i FILE...
# Usage: tools/check-format.sh [FILE...]   (default: every tracked .cpp and .h)
set -euo pipefail
cd "$(dirname "$0")/.."
format=${CLANG_FORMAT:-clang-format-14}
if ! command -v "$format" >/dev/null; then
    echo "check-format: $format not found (tools/install-deps.sh installs it)" >&2
    exit 2
fi
if (($# > 0)); then
    files=("$@")
else
    mapfile -t files < <(git ls-files '*.cpp' '*.h')
fi
unformatted=()
for f in "${files[@]}"; do
    if ! "$format" --style=file --dry-run --Werror "$f" >/dev/null 2>&1; then
        unformatted+=("$f")
    fi
done
if ((${#unformatted[@]} > 0)); then
    echo "Not formatted (${#unformatted[@]} files):"
    printf '  %s\n' "${unformatted[@]}"
    exit 1
fi
echo "All ${#files[@]} files formatted."
