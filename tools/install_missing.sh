#!/usr/bin/env bash
# tools/install_missing.sh PACKAGE...
# Installs those Debian packages that are not there yet. With all of them there it does nothing,
# and needs neither root nor a network.
set -euo pipefail

missing=()
for package in "$@"; do
    state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    # A package that exists in two architectures prints its state twice.
    [[ $state == installed* ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    echo "==> All packages are installed."
    exit 0
fi

as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing: ${missing[*]}" >&2
        echo "Install them as root, or install sudo; then start this again." >&2
        exit 1
    fi
    as_root=(sudo)
fi

apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y "$@"
}
install() {
    apt_get update && apt_get install --no-install-recommends "${missing[@]}"
}

echo "==> Installing: ${missing[*]}"
if ! install; then
    echo "==> That failed; trying once more."
    sleep 5
    install
fi
