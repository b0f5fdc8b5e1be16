#!/usr/bin/env bash
# Installs what building, testing and running need on Debian 12, if missing:
# also clang with its libFuzzer runtime for the fuzz targets, and the German
# locale the locale test runs under.
set -euo pipefail
packages=(cmake ninja-build g++ qtbase5-dev qtbase5-dev-tools libqt5svg5 xvfb xauth locales clang libclang-rt-14-dev)
# Translations (lupdate, lrelease) and the Debian package (shlibdeps).
packages+=(qttools5-dev qttools5-dev-tools dpkg-dev file)
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
if ! locale -a 2>/dev/null | grep -qix 'de_DE\.utf-\?8'; then
    $sudo sed -i 's/^# *\(de_DE\.UTF-8 UTF-8\)/\1/' /etc/locale.gen
    grep -q '^de_DE\.UTF-8 UTF-8' /etc/locale.gen || echo 'de_DE.UTF-8 UTF-8' | $sudo tee -a /etc/locale.gen >/dev/null
    $sudo locale-gen
fi
