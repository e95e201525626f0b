# shellcheck shell=bash
# How ./dev sets up the machine: Debian packages and the icon font. Read by ./dev only.

setup_log=build/setup.log
space_for_setup=2048 # MB: the packages and a whole build
space_for_build=300  # MB: what a build after an edit may add

icon_font=resources/Fonts/la-solid-900.ttf
icon_font_package=line-awesome@1.3.0
icon_font_sha256=07ce355990b27cd096df9864e0c102573f0cae020d611aee2578aa3d797e4230
icon_font_log=build/icon-font.log # left behind by a failure, so that only setup tries again

# The packages among the arguments that are not installed.
missing_packages() {
    local installed
    installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' "$@" 2>/dev/null || true)"
    for package in "$@"; do
        [[ $installed == *" installed=$package "* ]] || echo "$package"
    done
}

# Ends with a message when the disk that holds a folder has less than so many MB free.
need_space() {
    local folder=$1 megabytes=$2 free
    free=$(df --output=avail -BM "$folder" | tail -n 1 | tr -dc 0-9)
    ((free >= megabytes)) \
        || die "disk full: $folder has $free MB free, and $megabytes MB are needed"
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Asks for the password, where sudo wants one and there is a terminal to ask on.
may_become_root() {
    ((EUID == 0)) || { hash sudo && { sudo -n true || { [[ -t 0 ]] && sudo true; }; }; } 2>/dev/null
}

# Ends with what the log of apt-get says in one line.
explain_apt_failure() {
    local pattern='Temporary failure resolving|Could not resolve|Could not connect|Unable to connect'
    if grep -q 'No space left on device\|enough free space' $setup_log; then
        die "disk full while installing packages; see $setup_log"
    elif grep -qE "$pattern|Network is unreachable|Connection timed out" $setup_log; then
        die "no network: Debian's mirror cannot be reached; see $setup_log"
    fi
    die "apt-get failed: $(grep -m 1 '^E:' $setup_log || echo "see $setup_log")"
}

# Installs those of the packages that are missing.
need_packages() {
    if ! hash dpkg-query apt-get 2>/dev/null; then
        hash cmake ninja c++ 2>/dev/null \
            || die "this is not a Debian; install what Debian calls: $*"
        say "this is not a Debian; going on with what is installed in place of: $*"
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0

    may_become_root || die "no rights to install packages; as root, run:" \
        "apt-get update && apt-get install --no-install-recommends ${missing[*]}"
    need_space / $space_for_setup
    say "installing ${missing[*]} (log: $setup_log)"
    as_root apt-get update >$setup_log 2>&1 </dev/null || explain_apt_failure
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        -o DPkg::Lock::Timeout=120 "${missing[@]}" >>$setup_log 2>&1 </dev/null || explain_apt_failure
}

# Fetches the icon font in a temporary folder and puts it in place when it is the expected one.
fetch_icon_font() (
    hash npm 2>/dev/null || need_packages npm
    folder=$(mktemp -d)
    trap 'rm -rf -- "$folder"' EXIT
    cd "$folder" || exit
    npm pack --cache cache --fetch-retries 1 "$icon_font_package" \
        && tar -xzf ./*.tgz --strip-components 4 package/dist/line-awesome/fonts/la-solid-900.ttf \
        && echo "$icon_font_sha256  la-solid-900.ttf" | sha256sum --check --quiet \
        && install -D -m 644 la-solid-900.ttf "$OLDPWD/$icon_font"
)

# The font makes the icons of the widgets; without it they show text only.
need_icon_font() {
    [[ ! -e $icon_font ]] || return 0
    if [[ ! -e $icon_font_log ]]; then
        say "fetching the icon font"
        if fetch_icon_font >$icon_font_log 2>&1; then
            rm $icon_font_log
            return
        fi
    fi
    say "warning: no icon font, buttons show no icons; $icon_font_log says why, ./dev setup retries"
}
