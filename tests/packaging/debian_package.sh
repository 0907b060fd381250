#!/usr/bin/env bash
# The Debian package holds all it should and lintian has nothing against it.
# Usage: debian_package.sh BUILD_FOLDER VERSION
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cpack --config "$1/CPackConfig.cmake" -B "$folder" >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
package=$(ls "$folder"/quendal_"$2"-1_*.deb)

lintian --allow-root "$package" >"$folder/findings" 2>&1 || { cat "$folder/findings"; exit 1; }
if grep '^[EW]:' "$folder/findings"; then exit 1; fi

depends=$(dpkg-deb -f "$package" Depends)
for needed in libqt6widgets6 libqt6svg6 libqt6multimedia6 libqcustomplot2.1-qt6 breeze-icon-theme \
    fonts-liberation qt6-translations-l10n; do
    grep -qw -- "$needed" <<<"$depends" || { echo "doesn't depend on $needed: $depends"; exit 1; }
done

dpkg-deb -R "$package" "$folder/tree"
cd "$folder/tree"
md5sum --quiet -c DEBIAN/md5sums
# Whoever may look at the system may use it, and only root may change it.
[ -z "$(find usr \( -type d ! -perm 755 \) -o \( -type f -path 'usr/bin/*' ! -perm 755 \) \
    -o \( -type f ! -path 'usr/bin/*' ! -perm 644 \))" ]
[ -z "$(dpkg-deb -c "$package" | awk '$2 != "root/root"')" ]
for program in usr/bin/*; do
    ! readelf -S "$program" | grep -q '\.symtab' || { echo "$program isn't stripped"; exit 1; }
done
desktop-file-validate usr/share/applications/quendal.desktop
appstreamcli validate-tree --no-net .
