#!/usr/bin/env bash
# Installs the Debian packages the build needs, only those that are missing. A package of another
# architecture is named with it ("wine32:i386").
set -euo pipefail

packages=(cmake ninja-build g++ libgtest-dev libgmock-dev libbenchmark-dev libpugixml-dev pkgconf libfontconfig-dev
          libx11-dev libxext-dev libxcb1-dev
          # The Qt dialog host: qt6-base-dev to build it; at run time the widgets, the xcb platform
          # plugin (only recommended by libqt6gui6, so named here) and a font.
          qt6-base-dev libqt6widgets6 qt6-qpa-plugins fonts-dejavu-core
          # Dialog tests and screenshots on a display of their own.
          xvfb xdotool jwm x11-apps x11-utils imagemagick
          libedit-dev tmux
          "$@")
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=()
[ "$(id -u)" -ne 0 ] && sudo=(sudo)
export DEBIAN_FRONTEND=noninteractive

native=$(dpkg --print-architecture)
foreign=()
for p in "${missing[@]}"; do
    case $p in
    *:*) [ "${p##*:}" != "$native" ] && foreign+=("$p") ;;
    esac
done
# dpkg must know an architecture before apt fetches its package lists.
for arch in $(printf '%s\n' "${foreign[@]}" | sed 's/.*://' | sort -u); do
    dpkg --print-foreign-architectures | grep -qx "$arch" ||
        "${sudo[@]}" dpkg --add-architecture "$arch"
done

# A list that cannot be fetched (a mirror in the middle of a sync) need not stop the install:
# what the packages need may well be in the others.
"${sudo[@]}" apt-get update -qq || echo "deps.sh: some package lists could not be fetched" >&2

install() {
    "${sudo[@]}" apt-get install -y -qq --no-install-recommends --no-remove "$@"
}
install "${missing[@]}" && exit 0
[ ${#foreign[@]} -eq 0 ] && exit 1

# A library installed for both architectures must be the same version in both. When the foreign
# architecture's list of the security suite could not be fetched, the native libraries may be
# newer than any foreign build apt knows of, and apt gives up. Then the release's own suite
# serves both architectures, and each native library the foreign packages share is moved to the
# version the foreign architecture has.
echo "deps.sh: trying again with both architectures at the release's versions" >&2
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
closure=$(apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts --no-breaks \
              --no-replaces --no-enhances "${foreign[@]}" | grep -E '^[^ <].*:[a-z0-9]+$' | sort -u)
# "name:arch version" of each foreign package's candidate in the release's suite.
wanted=$(apt-cache -t "$release" policy $closure |
         awk '/^[^ ].*:$/ { name = substr($0, 1, length($0) - 1) }
              $1 == "Candidate:" && $2 != "(none)" { print name, $2 }')
aligned=()
while read -r p want; do
    name=${p%:*}
    # Only a library of both architectures ("Multi-Arch: same") must match.
    read -r have multiArch < <(dpkg-query -W -f='${Version} ${Multi-Arch}\n' "$name:$native" \
                                   2>/dev/null) || continue
    [ "$multiArch" = same ] && [ "$want" != "$have" ] || continue
    apt-cache madison "$name" |
        awk -F' *[|] *' -v v="$want" -v a=" $native Packages" 'index($3, a) && $2 == v { f = 1 }
                                                              END { exit !f }' || continue
    aligned+=("$name:$native=$want")
done <<<"$wanted"
[ ${#aligned[@]} -gt 0 ] && echo "deps.sh: aligning ${aligned[*]}" >&2
install -t "$release" --allow-downgrades "${missing[@]}" "${aligned[@]}"
