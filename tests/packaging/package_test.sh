#!/usr/bin/env bash
# Builds the Debian package from a built tree and checks what a player's apt would get: the
# game and its launcher in /usr/games, the pictures and bell, the icons, a menu entry that names
# its launcher by full path, valid AppStream metainfo, the manual pages, the copyright file and
# changelog, the declared dependencies, and no error or warning from lintian.
set -euo pipefail
build="$1"
out="$(mktemp -d)"
trap 'rm -rf "$out"' EXIT
(cd "$build" && cpack -G DEB -B "$out" >/dev/null)
deb="$(ls "$out"/marivale-poker_*.deb)"
dpkg-deb -x "$deb" "$out/root"
fail=0
check() {
    if ! eval "$2"; then
        echo "FAIL: $1"
        fail=1
    fi
}
root="$out/root/usr"
data="$root/share/games/marivale-poker"
for program in marivale-poker marivale-poker-launch; do
    check "$program in /usr/games" "[ -x '$root/games/$program' ]"
    check "$program manual page" "gzip -t '$root/share/man/man6/$program.6.gz'"
done
check "pictures" "[ \$(ls '$data/'*.gif | wc -l) -eq 62 ]"
check "bell" "[ -f '$data/bell.wav' ]"
check "copyright" "grep -q '^License: Expat' '$root/share/doc/marivale-poker/copyright'"
check "changelog" "zcat '$root/share/doc/marivale-poker/changelog.Debian.gz' | grep -q '^marivale-poker ('"
check "icons" "[ -f '$root/share/icons/hicolor/scalable/apps/marivale-poker.svg' ]"
check "menu entry names its launcher by full path" \
    "grep -qx 'Exec=/usr/games/marivale-poker-launch' '$root/share/applications/marivale-poker.desktop'"
check "launcher finds the pictures" "grep -q '\\.\\./share/games/marivale-poker' '$root/games/marivale-poker-launch'"
if command -v appstreamcli >/dev/null; then
    check "metainfo" "appstreamcli validate --no-net '$root/share/metainfo/'*.metainfo.xml >/dev/null"
fi
depends="$(dpkg-deb -f "$deb" Depends)"
for need in fonts-liberation2 libqt6widgets6 libqt6multimedia6 libqt6charts6 libqt6sql6-sqlite; do
    check "depends on $need" "grep -q '$need' <<<'$depends'"
done
# Every lintian error and warning fails the test; so does a missing lintian.
lint="$(lintian --tag-display-limit 0 "$deb" 2>&1 || true)"
command -v lintian >/dev/null || lint="E: lintian is not installed"
if grep -E '^[EW]: ' <<<"$lint"; then
    echo "FAIL: lintian"
    fail=1
fi
[ "$fail" -eq 0 ] && echo "package $(basename "$deb") is whole"
exit "$fail"
