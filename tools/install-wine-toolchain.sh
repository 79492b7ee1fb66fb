#!/bin/bash
# install-wine-toolchain.sh [--without-32-bit] [APT-GET-OPTION...]
# Installs Wine and the cross compilers on Debian 12; "-s" makes it a trial run.
#
# Wine's two bitnesses need every shared library at one version. The security suite's i386 index can lag behind its
# amd64 one, and then apt finds no such set. So only the main suite is used here, with lists of its own and a priority
# that lets its versions win; nothing below /etc/apt changes except the foreign architecture.
set -euo pipefail

packages=(wine wine64 libwine-dev g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools)
architectures=amd64
if [[ ${1:-} == --without-32-bit ]]; then
  shift
else
  packages+=(wine32:i386)
  architectures=amd64,i386
  dpkg --print-foreign-architectures | grep --quiet --line-regexp i386 || dpkg --add-architecture i386
fi

# shellcheck source=/dev/null
codename=$(. /etc/os-release && printf '%s' "$VERSION_CODENAME")

# The first mirror of the main suite among apt's own sources.
# shellcheck disable=SC2016  # apt fills these in
mirror=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
  awk -v release="$codename" '$2 == release && $3 == "main" && !found { print $1; found = 1 }')
[[ -n $mirror ]] || {
  echo "no main suite of $codename among apt's sources" >&2
  exit 1
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
# apt reads these as a user of its own.
chmod 755 "$folder"
mkdir -p "$folder/lists/partial" "$folder/preferences"
printf 'deb [arch=%s signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] %s %s main\n' \
  "$architectures" "$mirror" "$codename" >"$folder/sources.list"
printf 'Package: *\nPin: release o=Debian,l=Debian,n=%s\nPin-Priority: 1001\n' "$codename" \
  >"$folder/preferences/main-only"

options=(
  -o "Dir::Etc::SourceList=$folder/sources.list" -o Dir::Etc::SourceParts=/dev/null
  -o "Dir::State::Lists=$folder/lists" -o "Dir::Etc::PreferencesParts=$folder/preferences"
  -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300
)
apt-get "${options[@]}" update
DEBIAN_FRONTEND=noninteractive apt-get "${options[@]}" install -y --no-remove --allow-downgrades \
  --no-install-recommends "$@" "${packages[@]}"
