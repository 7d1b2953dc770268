#include "menu/hilfetexte.h"

namespace zentrox {

namespace {

constexpr TextView Haupt1 =
    "  Willkommen zur Kursus-Cd 2002  |"
    "des Bramhof Gymnasiums... | |"
    "Du befindest dich im Haupt-  |"
    "menü. Du kannst ein neues  |"
    "Spiel starten, ein angefangenes  |"
    "laden, dich mit dem Bonus-  |"
    "material herumschlagen oder  |"
    "das Menü beenden, was selbst-  |"
    "verständlich nicht so gut ist...  | |"
    "Im Bonusmaterial warten tolle  |"
    "Videos und Bilder, von Kurs-  |"
    "fahrten und anderen diversen  |"
    "Events auf dich...  |"_t;

constexpr TextView Haupt2 =
    "  Die Steuerung des Spiels ist  |"
    "recht einfach...  | |"
    "Wenn du in einem Raum stehst,  |"
    "gehe mit der Maus über einen  |"
    "Gegenstand, oder eine Person.  |"
    "Ein neues Mausicon leuchtet auf.  |"
    "Mit der linken Maustaste kannst  |"
    "du den Gegenstand benutzen, auf-  |"
    "nehmen, etc.  |"
    "Mit der rechten Maustaste wird  |"
    "ein Gegenstand von dir unter-  |"
    "sucht  |"
    "Das Inventar lässt sich mit der  |"
    "Leertaste öffnen. Du kannst  |"
    "diese Gegenstände mit anderen  |"
    "kombinieren, in dem du sie auf  |"
    "diese mit der linken Maustaste  |"
    "ziehst...  |"_t;

constexpr TextView Bonus1 =
    "  Du befindest dich im Menü für  |"
    "das Bonusmaterial...  | |"
    "Es gibt zwei Videos:  |"
    " -Nachtgeschichte (26 min)  |"
    " -Die Kreide spricht  |"
    "  (7 min) | |"
    "Auch die Bilder sind in ver-  |"
    "schiedene Kategorien unterteilt.  |"
    "Darunter sind z.B. Fotos aus  |"
    "Rom, Spanien, Morlen, Amsterdam,  |"
    "Berlin, Kaldenhoog, ...  |"
    "Besonders die Fotos vom CD-Rom  |"
    "Ausschuss sind zu beachten, wo  |"
    "wir gerade den 3. Weihnachtstag  |"
    "feiern...  |"
    "Die Treffen liefen allerdings  |"
    "fast immer so ab...  |"_t;

constexpr TextView Bonus2 =
    "  Die Mathe-Physik-LernCD besteht  |"
    "aus mehreren Dateien, die aus  |"
    "Velmars Kursus-LernCD heraus-  |"
    "exportiert worden sind.  |  |"
    "Krass!!!  |"_t;

}  // namespace

Hilfetexte MenuTexteFür(bool bonus, const Titel& titel) {
    const Hilfetexte& eigene = bonus ? titel.Bonushilfe : titel.Hilfe;
    if (!eigene.empty()) return eigene;
    if (bonus) return {Text(Bonus1), Text(Bonus2)};
    return {Text(Haupt1), Text(Haupt2)};
}

}  // namespace zentrox
