#include "media/medien.h"

#include <array>

namespace zentrox {

namespace {

struct Fehlertext {
    int code;
    TextView text;
};

constexpr std::array Fehlertexte{
    Fehlertext{-1, "Some Other Mystery Error"},
    Fehlertext{0, "All is OK"},
    Fehlertext{1, "Memory Error"},
    Fehlertext{2, "Can't Open the File"},
    Fehlertext{3, "Can't Find a Free Sound Driver"},
    Fehlertext{4, "The Sample Buffer Was Lost - Please Report This!"},
    Fehlertext{5, "Invalid Handle"},
    Fehlertext{6, "Unsupported Format"},
    Fehlertext{7, "Invalid Playback Position"},
    Fehlertext{8, "BASS_Init Has Not Been Successfully Called"},
    Fehlertext{9, "BASS_Start Has Not Been Successfully Called"},
    Fehlertext{10, "Can't Initialize CD"},
    Fehlertext{11, "BASS_CDInit Has Not Been Successfully Called"},
    Fehlertext{12, "No CD in drive"},
    Fehlertext{13, "Can't Play the Selected CD Track"},
    Fehlertext{14, "Already Initialized"},
    Fehlertext{15, "CD Has No Volume Control"},
    Fehlertext{16, "Not Paused"},
    Fehlertext{17, "Not An Audio Track"},
    Fehlertext{18, "Can't Get a Free Channel"},
    Fehlertext{19, "An Illegal Type Was Specified"},
    Fehlertext{20, "An Illegal Parameter Was Specified"},
    Fehlertext{21, "No 3D Support"},
    Fehlertext{22, "No EAX Support"},
    Fehlertext{23, "Illegal Device Number"},
    Fehlertext{24, "Not Playing"},
    Fehlertext{25, "Illegal Sample Rate"},
    Fehlertext{26, "A3D.DLL is Not Installed"},
    Fehlertext{27, "The Stream is Not a File Stream (WAV/MP3)"},
    Fehlertext{29, "No Hardware Voices Available"},
    Fehlertext{31, "The MOD music has no sequence data"},
    Fehlertext{32, "No Internet connection could be opened"},
    Fehlertext{33, "Couldn't create the file"},
    Fehlertext{34, "Effects are not enabled"},
    Fehlertext{35, "The channel is playing"},
    Fehlertext{37, "The requested data is not available"},
    Fehlertext{38, "The channel is a 'decoding channel'"},
};

}  // namespace

TextView TonstartMeldung(Tonstart ergebnis) {
    switch (ergebnis) {
        case Tonstart::keinSystem: return "Can't initialize digital sound system";
        case Tonstart::keineAusgabe: return "Can't start digital output";
        case Tonstart::gelungen: break;
    }
    return {};
}

Text BassFehlerText(int code) {
    for (const auto& fehler : Fehlertexte)
        if (fehler.code == code) return Text(fehler.text);
    return {};
}

Tonstart Medien::Start() {
    device_.useSoundFontsIn(z_.PfadMusics);
    if (!device_.init()) return Tonstart::keinSystem;
    if (!device_.start()) return Tonstart::keineAusgabe;
    return Tonstart::gelungen;
}

void Medien::Ende() {
    StimmeFrei();
    device_.free();
}

void Medien::TonStart(TextView path) {
    StimmeFrei();
    z_.Stimme = device_.openVoice(path);
    device_.playVoice(z_.Stimme);
}

void Medien::StimmeFrei() {
    device_.freeVoice(z_.Stimme);
    z_.Stimme = 0;
}

void Medien::SpieleWav(TextView path) {
    device_.playEffect(path);
}

void Medien::SongStart(TextView path) {
    // A copy, since the loop check passes `AktuellerSong` itself.
    const Text song(path);
    z_.AktuellerSong = song;
    device_.stopSong();
    if (files_.exists(song)) device_.playSong(song);
}

void Medien::SongStop() {
    device_.stopSong();
}

void Medien::SongPrüfen() {
    if (device_.songPosition() >= device_.songLength()) SongStart(z_.AktuellerSong);
}

void Medien::VideoStart(TextView path) {
    device_.stopVideo();
    if (!path.empty()) device_.playVideo(path);
}

void Medien::VideoStop() {
    device_.stopVideo();
}

}  // namespace zentrox
