#!/usr/bin/env bash
# Builds the Debian package from a build folder and checks what a user gets: the
# file list, the control fields, the desktop and AppStream metadata, lintian's
# verdict, and the programs run from the unpacked package.
# Usage: test_package.sh BUILD_DIR VERSION PROGRAM...
set -euo pipefail

build=$1
version=$2
shift 2
programs=()
for program in "$@"; do
    [ -n "$program" ] && programs+=("$program")
done

work=$(mktemp -d "${TMPDIR:-/tmp}/test_package.XXXXXX")
trap 'rm -rf "$work"' EXIT
failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# The package wraps what the build made (the default build target makes the programs,
# manual pages and icons); building here would race with tests that run them.
for program in "${programs[@]}"; do
    [ -x "$build/$program" ] || { echo "FAIL: $build/$program is not built; build the project first"; exit 1; }
done

# A scratch output folder keeps a package made by hand in the build folder untouched.
if ! cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" > "$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    exit 1
fi
deb=$work/out/glimmer_${version}_$(dpkg --print-architecture).deb
if [ ! -f "$deb" ]; then
    cat "$work/cpack.log"
    echo "FAIL: cpack made no $(basename "$deb")"
    exit 1
fi

# Control fields.
field() { dpkg-deb --field "$deb" "$1"; }
[ "$(field Package)" = glimmer ] || fail "package name $(field Package)"
[ "$(field Version)" = "$version" ] || fail "package version $(field Version), expected $version"
depends=$(field Depends)
# libc6 and Qt come from dpkg-shlibdeps; the rest are the programs and data the app runs.
for dependency in libc6 libqt5core5a libmpv ffmpeg aria2 pocketsphinx-en-us qt5-image-formats-plugins; do
    grep -Eq "(^|, )$dependency[^,]*" <<< "$depends" || fail "Depends lacks $dependency: $depends"
done
grep -q fonts-noto-cjk <<< "$(field Recommends)" || fail "Recommends lacks a CJK font"
# Removal leaves nothing behind: no maintainer scripts that could create files.
control_members=$(dpkg-deb --ctrl-tarfile "$deb" | tar -t | sed 's|^\./||' | grep -v '^$' | sort | tr '\n' ' ')
[ "$control_members" = "control md5sums " ] || fail "control members: $control_members"

# File list.
dpkg-deb --contents "$deb" | awk '{ print $6 }' | sed 's|^\.||; s|/$||' | grep -v '^$' > "$work/files"
outside=$(grep -v '^/usr\(/\|$\)' "$work/files" || true)
[ -z "$outside" ] || fail "files outside /usr: $outside"
expected=(
    /usr/share/applications/org.glimmer.Glimmer.desktop
    /usr/share/metainfo/org.glimmer.Glimmer.metainfo.xml
    /usr/share/icons/hicolor/scalable/apps/glimmer.svg
    /usr/share/icons/hicolor/64x64/apps/glimmer.png
    /usr/share/icons/hicolor/128x128/apps/glimmer.png
    /usr/share/doc/glimmer/copyright
    /usr/share/doc/glimmer/changelog.gz
)
for program in "${programs[@]}"; do
    expected+=("/usr/bin/$program" "/usr/share/man/man1/$program.1.gz")
done
for file in "${expected[@]}"; do
    grep -qx "$file" "$work/files" || fail "the package lacks $file"
done
unexpected=$(grep '^/usr/bin/' "$work/files" | grep -vxF "$(printf '/usr/bin/%s\n' "${programs[@]}")" || true)
[ -z "$unexpected" ] || fail "unexpected programs: $unexpected"

# Unpack as a user's machine would hold it.
root=$work/root
dpkg -x "$deb" "$root"

metainfo=$root/usr/share/metainfo/org.glimmer.Glimmer.metainfo.xml
if [ -f "$metainfo" ]; then
    appstreamcli validate --no-net "$metainfo" || fail "appstreamcli rejects the metainfo"
    launchable=$(sed -n 's|.*<launchable type="desktop-id">\(.*\)</launchable>.*|\1|p' "$metainfo")
    [ -f "$root/usr/share/applications/$launchable" ] || fail "the metainfo launches '$launchable', which is not in the package"
    newest=$(grep -o '<release version="[^"]*"' "$metainfo" | head -n 1 | cut -d'"' -f2)
    [ "$newest" = "$version" ] || fail "the newest release in the metainfo is '$newest', the program is $version"
    # Every screenshot also ships, under its file name, in the package's docs.
    shots=$(grep -o '<image>[^<]*</image>' "$metainfo" | sed 's|<image>||; s|</image>||')
    [ -n "$shots" ] || fail "the metainfo shows no screenshot"
    for shot in $shots; do
        picture=$root/usr/share/doc/glimmer/screenshots/$(basename "$shot")
        file --brief --mime-type "$picture" 2>/dev/null | grep -qx image/png || fail "no PNG $picture for $shot"
    done
fi
for desktop in "$root"/usr/share/applications/*.desktop; do
    [ -f "$desktop" ] || continue
    desktop-file-validate "$desktop" || fail "desktop-file-validate rejects $(basename "$desktop")"
    grep -q '^Exec=glimmer %[fFuU]$' "$desktop" || fail "$(basename "$desktop") does not pass a file to glimmer"
done
if [ -f "$root/usr/share/doc/glimmer/changelog.gz" ]; then
    changelog_version=$(zcat "$root/usr/share/doc/glimmer/changelog.gz" | head -n 1 | sed -n 's/^glimmer (\([^)]*\)).*/\1/p')
    [ "$changelog_version" = "$version" ] || fail "the changelog's newest entry is '$changelog_version', the program is $version"
fi
for size in 64 128; do
    icon=$root/usr/share/icons/hicolor/${size}x${size}/apps/glimmer.png
    [ ! -f "$icon" ] || [ "$(identify -format '%wx%h' "$icon")" = "${size}x${size}" ] || fail "$icon is not ${size}x${size}"
done

# The programs run from the unpacked package without a display.
for program in "${programs[@]}"; do
    binary=$root/usr/bin/$program
    [ -x "$binary" ] || continue
    if ! out=$(env -u DISPLAY "$binary" --version 2>&1) || ! grep -q "$version" <<< "$out"; then
        fail "$program --version: $out"
    fi
    if ! out=$(env -u DISPLAY "$binary" --help 2>&1) || ! grep -qi '^usage:' <<< "$out"; then
        fail "$program --help: $out"
    fi
done
if [ -x "$root/usr/bin/glimmer-speechd" ]; then
    env -u DISPLAY "$root/usr/bin/glimmer-speechd" --help | grep -q -- --model-dir || fail "glimmer-speechd --help lists no --model-dir"
fi

# lintian: errors fail, warnings are shown.
start=$(date +%s)
lintian_status=0
lintian --tag-display-limit 0 "$deb" > "$work/lintian.log" 2>&1 || lintian_status=$?
cat "$work/lintian.log"
echo "lintian took $(($(date +%s) - start)) s"
if grep -q '^E: ' "$work/lintian.log" || [ "$lintian_status" -ne 0 ]; then
    fail "lintian reports errors (exit status $lintian_status)"
fi

if [ "$failures" -ne 0 ]; then
    echo "$failures check(s) failed"
    exit 1
fi
echo "glimmer_${version} package checks passed"
