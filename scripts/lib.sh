# shellcheck shell=bash disable=SC2034
# Shared by the scripts in this folder: where things are, and how to say what went wrong.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
tools=$root/build/tools

say() { printf '%s\n' "$*"; }
die() { printf '%s\n' "$*" >&2; exit 1; }
have() { command -v "$1" >/dev/null 2>&1; }

# alone NAME: waits until no other shell holds NAME, and holds it until this shell ends.
alone() {
  local lock
  mkdir -p "$root/build"
  exec {lock}>"$root/build/$1.lock"
  flock "$lock"
}

# as_root COMMAND...: directly when root, through sudo otherwise.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; return; fi
  have sudo || die "Installing packages needs root: run this as root, or install sudo."
  sudo -- "$@"
}

# fetch_npm_package NAME VERSION INTEGRITY FOLDER: unpacks one published package, refused unless its bytes are the pinned ones.
fetch_npm_package() {
  local name=$1 version=$2 integrity=$3 folder=$4 work tarball sum
  work=$(mktemp -d)
  (cd "$work" && npm pack --silent "$name@$version" >/dev/null) ||
    die "Could not download $name $version with npm: check the network connection."
  tarball=$(echo "$work"/*.tgz)
  sum=sha512-$(openssl dgst -sha512 -binary "$tarball" | base64 -w0)
  [ "$sum" = "$integrity" ] || die "$name $version is not the expected download (its checksum is $sum)."
  rm -rf "$folder" && mkdir -p "$folder"
  tar -xzf "$tarball" -C "$folder" --strip-components=1
  rm -rf "$work"
}

# Node and npm of our own come first when bootstrap had to fetch them.
if [ -x "$tools/node/bin/node" ]; then PATH=$tools/node/bin:$PATH; export PATH; fi
# A C++ compiler cache is used when the machine has one; it is never required.
if have ccache; then export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}; fi

# Build jobs: as many as there are cores.
jobs=$(nproc)

# sharded PROGRAM...: passes a program's GoogleTest tests in twice as many processes as there are cores, as many of them wait
# more than they work. Prints what the runner says of each in the end, and all that one has to say that did not pass.
sharded() (
  reports=$(mktemp -d)
  # shellcheck disable=SC2046
  trap 'kill $(jobs -pr) 2>/dev/null || true; rm -rf "$reports"' EXIT
  running=()
  for ((shard = 0; shard < 2 * jobs; shard++)); do
    GTEST_TOTAL_SHARDS=$((2 * jobs)) GTEST_SHARD_INDEX=$shard "$@" >"$reports/$shard" 2>&1 &
    running+=($!)
  done
  failed=0
  for shard in "${!running[@]}"; do
    if wait "${running[$shard]}"; then grep -E '^\[(=| )' "$reports/$shard"; else failed=1 && cat "$reports/$shard"; fi
  done
  exit $failed
)
