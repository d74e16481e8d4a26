#!/usr/bin/env bash
# install_test.sh BUILD: the tree that the build installs, moved to another place, is complete and works from there.
set -euo pipefail

build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

die() {
    echo "$*" >&2
    exit 1
}

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved here"
cd "$work/moved here"

for file in bin/r7 share/man/man1/r7.1 share/applications/r7.desktop share/metainfo/org.example.r7.metainfo.xml \
    share/icons/hicolor/{16x16,24x24,32x32,48x48,64x64,128x128,256x256}/apps/r7.png \
    share/icons/hicolor/scalable/apps/r7.svg \
    share/doc/r7/{README.md,CHANGELOG.md,FONT-LICENCE.txt,demonstration.session,docs/sessions.md}; do
    [[ -s $file ]] || die "$file is not installed"
done

# The panel, from the resources beside it.
env -i "$build/r7" snapshot "$work/here.png"
env -i bin/r7 snapshot "$work/there.png"
cmp "$work/here.png" "$work/there.png"
mv share/r7 away
status=0
env -i bin/r7 snapshot "$work/none.png" 2>"$work/complaint" || status=$?
[[ $status == 4 && $(<"$work/complaint") == *"/moved here/share/r7/"* ]] || die "it finds resources elsewhere"

# The manual knows every option, and the program every option of the manual.
for form in '' play snapshot text; do bin/r7 $form --help; done | grep -oE -- '^ +(-h,)?--[a-z-]+' |
    grep -oE -- '--[a-z-]+' | sort -u >"$work/options"
grep -oE -- 'Fl -[a-z-]+' share/man/man1/r7.1 | sed 's/Fl -/--/' | sort -u | diff "$work/options" - ||
    die "the manual and the program differ in their options"
