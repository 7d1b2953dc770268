# Sourced from the top of the repository with the sections of packages.txt that the caller needs: installs what is
# missing of them, unless ZENTROX_NO_SETUP is set.

wanted_packages() {
    awk -v sections=" $* " '
        { sub(/#.*/, "") }
        /^\[/ { wanted = index(sections, " " substr($1, 2, length($1) - 2) " "); next }
        NF && wanted { print $1 }' packages.txt
}

missing_packages() {
    local package
    for package in $(wanted_packages "$@"); do
        dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' || echo "$package"
    done
}

install_packages() {
    if ! command -v apt-get >/dev/null 2>&1; then
        echo "There is no apt-get here. Install what these Debian packages hold, then run this again with ZENTROX_NO_SETUP=1:" >&2
        wanted_packages "$@" >&2
        exit 1
    fi
    local missing as_root=()
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return 0
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    echo "Installing:" $missing
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

[ -n "${ZENTROX_NO_SETUP:-}" ] || install_packages "$@"
