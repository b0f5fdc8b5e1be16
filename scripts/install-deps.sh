#!/usr/bin/env bash
# Installs what building, testing and running need on Debian 12, if missing.
set -euo pipefail
packages=(cmake ninja-build g++ qtbase5-dev qtbase5-dev-tools libqt5svg5 xvfb xauth)
# Translations (lupdate, lrelease), the Debian package (shlibdeps) and a German locale to try it in.
packages+=(qttools5-dev qttools5-dev-tools dpkg-dev file locales)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
if ! locale -a 2>/dev/null | grep -qix 'de_DE.utf-\?8'; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo localedef -i de_DE -f UTF-8 de_DE.UTF-8
fi
