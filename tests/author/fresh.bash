# For scripts that work on a fresh story, `s`, in the directory $out: its sources are in s/story, its data is built.
. "$(dirname "$0")/../desktop/display.bash"
rm -rf "$out"
mkdir -p "$out"
cd "$out" || exit 1
"$story" new s >/dev/null || fail "no story"
"$story" build s/story --into s >/dev/null || fail "no data"
