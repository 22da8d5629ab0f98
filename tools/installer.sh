# shellcheck shell=bash
# Installs what is missing from Debian's packages. Sourced by run and test, or by hand:
#
#   . tools/installer.sh
#   installer construction bureau

# What each purpose needs.
paquets() {
    case $1 in
        construction) echo g++ cmake ninja-build libgtest-dev ;;
        bureau) echo qt6-base-dev qt6-translations-l10n fonts-dejavu-core fonts-comic-neue ;;
        essais) echo python3 clang-format clang-tidy ;;
        bout-en-bout)
            echo python3 python3-gi gir1.2-atspi-2.0 at-spi2-core dbus-daemon xvfb xdotool x11-xkb-utils openbox \
                imagemagick libxtst6 strace
            ;;
        fuzz) echo clang libclang-rt-dev ;;
        traitements-de-texte) echo python3 libreoffice-writer-nogui abiword ;;
        bancs) echo libbenchmark-dev libxtst-dev libxdamage-dev ;;
        mesure) echo python3 python3-xlib xvfb x11-xkb-utils unrtf catdoc ;;
        *)
            echo "installer : usage inconnu / unknown purpose: $1" >&2
            return 1
            ;;
    esac
}

index_a_jour=non

# The messages are in French first, for the teacher who only types ./run.
installer() {
    local usage paquet liste manquants=() admin=()
    for usage in "$@"; do
        liste=$(paquets "$usage") || return
        for paquet in $liste; do
            if [[ $(dpkg-query -W -f='${db:Status-Status}' "$paquet" 2>/dev/null) != installed ]]; then
                manquants+=("$paquet")
            fi
        done
    done
    [[ ${#manquants[@]} -gt 0 ]] || return 0

    if ! command -v apt-get >/dev/null; then
        echo "Il manque : ${manquants[*]} (et apt-get n'existe pas ici)." >&2
        echo "Missing: ${manquants[*]} (and there is no apt-get here)." >&2
        return 1
    fi
    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "Il manque : ${manquants[*]}. Installez ces paquets, ou recommencez en root ou avec sudo." >&2
            echo "Missing: ${manquants[*]}. Install these packages, or start again as root or with sudo." >&2
            return 1
        fi
        admin=(sudo)
    fi
    echo "Installation de / Installing: ${manquants[*]}"
    if [[ $index_a_jour = non ]]; then
        "${admin[@]}" apt-get -q update
        index_a_jour=oui
    fi
    "${admin[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o Dpkg::Use-Pty=0 install --no-install-recommends "${manquants[@]}"
}
