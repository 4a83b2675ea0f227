# shellcheck shell=bash disable=SC2034
# Shared by the scripts that make packages: what is packed, where it goes, and how it is reported.
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib.sh"
umask 022

# of_page KEY: a value of the page's package.json, the only place where name and version are written down.
of_page() { node -p "require('$root/web/package.json').$1"; }

name=$(of_page name)
display_name=$(of_page displayName)
version=$(of_page version)
description=$(of_page description)
packages=$root/build/packages
packaging=$root/packaging

# The same commit gives the same package: its time stands in for the time of packing.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}
export SOURCE_DATE_EPOCH TZ=UTC
date=$(date -d "@$SOURCE_DATE_EPOCH" +%F)

# fill TEMPLATE: prints it with its @KEY@s replaced.
fill() {
  sed -e "s|@NAME@|$name|g" -e "s|@DISPLAY_NAME@|$display_name|g" -e "s|@VERSION@|$version|g" \
    -e "s|@DESCRIPTION@|$description|g" -e "s|@DATE@|$date|g" "$1"
}

# new_stage NAME: makes an empty folder for what goes into a package, and prints it.
new_stage() {
  local folder=$packages/stage/$1
  rm -rf "$folder" && mkdir -p "$folder"
  echo "$folder"
}

# bytes_in FOLDER: the sizes of all files in it, added up.
bytes_in() { find "$1" -type f -printf '%s\n' | awk '{ sum += $1 } END { print sum + 0 }'; }

# pack_zip FOLDER FILE: packs what is in the folder, in a fixed order and with fixed times.
pack_zip() {
  rm -f "$2"
  find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
  (cd "$1" && find . -mindepth 1 -printf '%P\n' | LC_ALL=C sort | zip -q -X -9 "$2" -@)
}

# report_size FILE BYTES: prints the size of a package, and of what it installs.
report_size() { printf '%s: %s, %s installed\n' "${1#"$root/"}" "$(megabytes "$(stat -c %s "$1")")" "$(megabytes "$2")"; }
megabytes() { awk -v bytes="$1" 'BEGIN { printf "%.2f MB", bytes / 1e6 }'; }
