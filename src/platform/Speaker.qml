import QtQml
import QtTextToSpeech

// What speaks for the system, in one language. Each text that it is given ends once, unless it is stopped before.
TextToSpeech {
    id: speaker

    required property string language
    property bool isSpoken: false // Whether it speaks the language.
    property int number
    property bool hasBegun: false

    signal ended(int number, bool isSaid)

    function read(text, textNumber) {
        number = textNumber;
        hasBegun = false;
        say(text);
    }

    // The country's own way to speak it, or else the usual one; of several voices the plainest, which has the
    // shortest name: "English (America)" and not "English (America)+Robert".
    function choose(): bool {
        const known = Array.from(availableLocales(), each => each.name);
        const wanted = [Qt.locale().name, Qt.locale(language).name, ...known];
        const name = wanted.find(each => each.split("_")[0] === language && known.includes(each));
        if (!name)
            return false;
        locale = Qt.locale(name);
        const voices = Array.from(availableVoices());
        if (voices.length > 0)
            voice = voices.reduce((plainest, each) => each.name.length < plainest.name.length ? each : plainest);
        return true;
    }

    Component.onCompleted: isSpoken = choose()
    // What is ready without having begun was stopped before.
    onStateChanged: state => {
        if (state === TextToSpeech.Speaking)
            hasBegun = true;
        else if (state === TextToSpeech.Error || (state === TextToSpeech.Ready && hasBegun))
            ended(number, state === TextToSpeech.Ready);
    }
}
