# What the checks of packages share: their counts, a scratch folder, the packages' common name. The first argument of a
# check is the folder of the packages, the second the program that plays a user at the window.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
wine_run=$root/scripts/wine-run
packages=$(cd "$1" && pwd)
driver=${2:-}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
source "$root/tests/windows/checks.sh"
source "$root/tests/windows/user.sh"
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
release=orvik-stormwater-$version
question=(solve --station Gainesville --rate 0.15 --volume 3)
# What the sample project's answer is.
efficiency=$("$root/build/native/kav" calc "$root/data/samples/efficiency.kav" 2>/dev/null | sed -n 's/^Efficiency (%) *//p')
