#!/usr/bin/env bash
# Makes the folder, the zip and the installer for Windows out of build/windows, into
# build/windows/package. The same sources give the same bytes, wherever they lie.
set -euo pipefail
cd "$(dirname "$0")/../.."

version=$(sed -n 's/^project(tombrello VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
package=$PWD/build/windows/package
folder=$package/Tombrello
rm -rf "$package"
mkdir -p "$folder"
cp build/windows/Tombrello.exe "$folder"
cp -r assets/sounds assets/music "$folder"
cp /usr/share/doc/libagg-dev/copyright "$folder/AGG.txt"  # its notice goes where its code goes
sed 's/$/\r/' LEGGIMI.md >"$folder/LEGGIMI.txt"
sed 's/$/\r/' packaging/windows/NOTICES.txt >"$folder/NOTICES.txt"
# The modes of a checkout, and the days on which it was made, say nothing.
find "$folder" -type f -exec chmod 644 {} +
find "$folder" -type d -exec chmod 755 {} +
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-1767225600} TZ=UTC LC_ALL=C
find "$folder" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +

# What is installed, file by file, and what is taken away again.
(
  cd "$package/Tombrello"
  find . -type f -printf '%P\n' | sort | while read -r file; do
    place=$(dirname "$file" | tr / '\\')
    name=$(tr / '\\' <<<"$file")
    printf 'SetOutPath "$INSTDIR\\%s"\nFile "%s/%s"\n' "$place" "$PWD" "$file" >>../install.nsh
    printf 'Delete "$INSTDIR\\%s"\n' "$name" >>../uninstall.nsh
  done
  find . -mindepth 1 -type d -printf '%P\n' | sort -r | while read -r place; do
    printf 'RMDir "$INSTDIR\\%s"\n' "$(tr / '\\' <<<"$place")" >>../uninstall.nsh
  done
  echo 'SetOutPath "$INSTDIR"' >>../install.nsh
)

(
  cd "$package"
  find Tombrello -type f | sort >files
  cmake -E tar cf "Tombrello-$version-windows.zip" --format=zip --files-from=files
)
makensis -V2 -DVERSION="$version" -DFOLDER="$folder" \
  -DICON="$PWD/build/windows/platform/windows/tombrello.ico" \
  -DOUT="$package/Tombrello-$version-setup.exe" packaging/windows/installer.nsi
rm "$package"/files "$package"/*.nsh
ls -l "$package"/*.zip "$package"/*.exe
