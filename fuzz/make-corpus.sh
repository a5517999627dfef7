#!/usr/bin/env bash
# Refreshes the generated part of the seed corpora in fuzz/corpus/:
#   - zvn/sim-*.zvn: games saved by zorvane-sim at different stages, from the scripts in
#     fuzz/seeds/ (a script's "# goal N" line picks the goal, OUT is the save's path);
#   - <target>/shipped-*: the shipped data file each loader target reads.
# The hand-made bad files (bad-*) are written once and kept as they are.
# Usage: fuzz/make-corpus.sh [path/to/zorvane-sim]   (default: build/release/bin/zorvane-sim)
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
sim=${1:-$here/../build/release/bin/zorvane-sim}
corpus=$here/corpus
data=$here/../data

mkdir -p "$corpus"/{zvn,math,employees_cfg,goals_cfg,movies_lst,games_lst}

for script in "$here"/seeds/*.txt; do
    name=$(basename "$script" .txt)
    goal=$(sed -n 's/^# goal \([0-9]*\)$/\1/p' "$script")
    out=$corpus/zvn/sim-$name.zvn
    sed "s|OUT|$out|" "$script" | "$sim" --seed 7 --goal "${goal:-0}" --quiet --data "$data" -
    echo "saved $out"
done

cp "$data/math.txt" "$corpus/math/shipped-math.txt"
cp "$data/employees.cfg" "$corpus/employees_cfg/shipped-employees.cfg"
cp "$data/goals.cfg" "$corpus/goals_cfg/shipped-goals.cfg"
cp "$data/movies.lst" "$corpus/movies_lst/shipped-movies.lst"
cp "$data/games.lst" "$corpus/games_lst/shipped-games.lst"
