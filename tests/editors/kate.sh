#!/usr/bin/env bash
# Lets KDE's highlighting colour a small story: kate.sh HIGHLIGHTER SOURCES SCRATCH
set -euo pipefail
highlighter=$1 sources=$2 scratch=$3
rm -rf "$scratch"
mkdir -p "$scratch/org.kde.syntax-highlighting/syntax"
cd "$scratch"
cp "$sources/editors/kate/zentrox-geschichte.xml" org.kde.syntax-highlighting/syntax
cat >probe.story <<'END'
raum "Start.lsd"  // stumm: x
    Flaeche Rechteck 1, 2, 30 -40
    LÖSCHEMERKER A
    Der Esel: "$7Hü, //nein!"
    Text "offen
    Foo bar
END
XDG_DATA_HOME=$scratch QT_QPA_PLATFORM=offscreen "$highlighter" -f html -s Zentrox-Geschichte probe.story >said.html 2>&1
for coloured in 'raum' '&quot;Start.lsd&quot;' '// stumm: x' Flaeche Rechteck 1 -40 LÖSCHEMERKER 'Der Esel:' '&quot;$7' \
    'Hü, //nein!&quot;' Text '&quot;offen'; do
    grep -qF -- ">$coloured</span>" said.html || { echo "not coloured: $coloured"; cat said.html; exit 1; }
done
! grep -E '<span[^>]*>(A|Foo|bar)<' said.html
