<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Gib die Zahlen deiner Aufgabe ein:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Deine Eingabe</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Erweitern</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Umgeformte Eingabe</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>Keine Lösung in den reellen Zahlen</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Noch unklar? Sieh dir ein Video an</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Zum Freischalten tippen</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Umformen</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>Wie gefällt dir die App?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Danke!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Bruch kürzen</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Wurzel ziehen</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Potenz berechnen</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Kehrwert</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Eingabe</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Potenzen und Wurzeln</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Dein Bild entsteht</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>Der ganze Lösungsweg wird ein langes Bild. Am schärfsten bleibt es, wenn du es als Datei verschickst.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Möchtest du wirklich den ganzen Verlauf löschen?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>%0 löschen</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Aufgabe gelöscht</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>Verlauf gelöscht</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Verschoben auf %0 von %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Noch nichts da. Alles, was du rechnest, steht später hier, und du kannst es wieder öffnen.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Etwas berechnen</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Aufgabe ohne Formel</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Verlauf durchsuchen</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Gefunden: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>Keine Aufgabe im Verlauf passt dazu.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Wie eingegeben kopieren</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Verlauf exportieren</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Verlauf importieren</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Importierte Aufgaben: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Alle diese Aufgaben stehen schon im Verlauf.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Diese Datei kann nicht gelesen werden. Es wurde nichts geändert.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Diese Datei ist zu groß für einen Verlauf. Es wurde nichts geändert.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>Diese Datei enthält keinen Verlauf dieser App oder ist beschädigt. Es wurde nichts geändert.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>Im Ordner %1 liegt keine Datei mit einem Verlauf. Lege sie dort ab und versuche es noch einmal.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Gerade kann nichts gespeichert werden. Dein Verlauf bleibt, bis du die App schließt.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Keine Internetverbindung</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Zustimmen</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Ablehnen</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Datenschutz bei Videos</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Die Videos kommen von YouTube, einem fremden Dienst. Wenn du zustimmst, werden sie von den Servern von YouTube geladen, sobald sie zu sehen sind. YouTube erfährt dabei deine Internetadresse, kann Daten auf deinem Gerät speichern und dich wiedererkennen, wenn du dort angemeldet bist.

Vorher wird nichts geladen. Mit dem Schloss über den Videos kannst du deine Zustimmung jederzeit widerrufen; alles andere geht auch ohne Videos.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>Was du rechnest, bleibt auf diesem Gerät. Deine Aufgaben, deine Einstellungen und diese Antwort werden nur hier gespeichert.

Ist eine Adresse dafür eingetragen, holt die App ihre Liste von Videos und Apps aus dem Internet; über dich wird dabei nichts gesendet. Links öffnen sich in deinem Browser, und Videos kommen erst von YouTube, wenn du es erlaubt hast.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Willkommen bei §appname! Hier lernst du Schritt für Schritt, wie man Potenzen und Wurzeln berechnet.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>Wähle oben zwischen Potenz und Wurzel.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Tippe auf ein Feld und gib deine Zahlen ein. Auch Brüche, Dezimalzahlen, π und x, y, z sind willkommen.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Tippe auf den Haken, dann siehst du jeden Schritt. Farben zeigen, was geschieht; lange Zeilen lassen sich seitwärts schieben.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Deine Aufgaben bleiben im Verlauf, den du im Menü findest. Der Teilen-Knopf macht aus einer Lösung ein Bild.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Manche Schritte versteht man leichter mit einem Video.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Die Videos unter einer Lösung erklären das gleiche Thema. Schiebe die Reihe seitwärts, um mehr zu sehen.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Sie kommen von YouTube. YouTube erfährt dabei deine Internetadresse und kann Daten auf deinem Gerät speichern.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Solange die Reihe gesperrt ist, wird von dort nichts geladen.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Du kannst dich jederzeit anders entscheiden: Tippe auf das Schloss über den Videos.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Einführung</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Diese App bewerten</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Community-Chat</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Besuche uns:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Alles in einem:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Weitere Apps:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Diese Zahlen widersprechen sich. Bitte prüfe deine Eingabe.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>Der Wert muss größer als %0 und kleiner als %1 sein.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>Der Wert muss größer als %0 sein.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>Der Wert muss kleiner als %0 sein.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Es fehlt ein Wert. Bitte fülle das markierte Feld aus.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>Das kann ich nicht als Zahl lesen. Bitte prüfe das markierte Feld.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>Der Bruch ist unvollständig. Er braucht einen Zähler und einen Nenner.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>Durch null kann man nicht teilen. Bitte ändere den Nenner.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Schreibe π in jedem Teil einer Zahl nur einmal.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Schreibe π oder einen Buchstaben hinter die Zahl, wie in 2π oder 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Schreibe in jedem Teil einer Zahl nur eine Variable.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Das wären mehr Schritte, als man lesen kann. Bitte nimm hier eine kleinere Zahl.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Diese Zahlen sind mir zu groß oder zu genau. Bitte nimm kleinere oder kürzere.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Tippe zuerst auf ein Feld</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Basis und Exponent fehlen noch</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Die Basis fehlt noch</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Der Exponent fehlt noch</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Der Radikand fehlt noch</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>Der Bruch ist noch nicht fertig</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Es fehlt noch eine Ziffer</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Das ist noch keine Zahl</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Es kann nur einen Dezimalpunkt geben</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Es kann nur einen Bruchstrich geben</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>Null kann kein Nenner sein</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π passt nur einmal in eine Zahl</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>Hinter die Zahl kommt π oder ein Buchstabe</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Nur ein Buchstabe passt in eine Zahl</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>Das ist zu lang zum Ausschreiben</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>Das ist zu groß oder zu genau</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>Das Ergebnis ist zu groß und erscheint als ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Hier wird durch null geteilt; es erscheint ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Hier gehen nur Ziffern und π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>Das Kopierte ist keine eindeutige Zahl</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>Ein Minus kann nur vorne stehen</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>In dieses Feld passt nur eine Zahl</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Art der Aufgabe</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Basis</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Exponent</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Radikand</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Wurzelexponent</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Potenz</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Wurzel</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Zeichen löschen</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Berechnen</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Dezimalpunkt</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Bruchstrich</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Minuszeichen</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>Lösung teilen</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Als LaTeX kopieren</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Als MathML kopieren</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>In Worten kopieren</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Als Bild kopieren</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Ab hier vorlesen</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Vorlesen beenden</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Lösung</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Gespeichert unter %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>Für die Datei ist nicht genug Platz. Schaffe Platz oder wähle einen anderen Ort; es wurde nichts gespeichert.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>In diesem Ordner lässt sich nichts speichern. Wähle einen anderen.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>Es wurde kein Programm gefunden, das Bilder zeigt. Speichere das Bild stattdessen.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>So geht es</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>Los geht's</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>Über die Videos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Datenschutz der Videos: gesperrt</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Datenschutz der Videos: erlaubt</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Kein Video</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Video, noch nicht bereit</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Im Browser ansehen</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 von %2 Sternen</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>§ Rabatt sichern</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Dieser Link lässt sich hier nicht öffnen.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Wähle, ob du eine Potenz oder eine Wurzel willst.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>Die Basis, bei Wurzeln die Zahl unter dem Wurzelzeichen. Tippe auf ein Feld, um hineinzuschreiben.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>Der Exponent, bei Wurzeln der Wurzelexponent. Leer bedeutet er 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Punkt, Bruchstrich und Buchstaben: Schreibe 0.5, 3/2, π oder x. Minus wechselt das Vorzeichen des Feldes.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>Die Taste mit dem Kreuz löscht, der Haken startet die Rechnung.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>Die Lösung beginnt mit deiner Aufgabe. Zu lange Zeilen lassen sich seitwärts schieben.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Rot: womit der nächste Schritt arbeitet. Blau und Violett: Zähler und Nenner eines Exponenten.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Grün: was gerade ausgerechnet wurde.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>Das Ergebnis, zu erkennen am Balken links.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Formeln</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Formeln kleiner</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Formeln größer</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>Hier erscheint die Rechnung.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Deutsch</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>Eine andere Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Nutzungszahlen</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Senden, welche Funktionen genutzt werden</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Diese Version merkt sich nichts über ihre Nutzung und sendet nichts.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Nur wenn du es in den Einstellungen erlaubst, merkt sich die App, welche ihrer Funktionen genutzt werden, und sendet das an %1. Du kannst das dort jederzeit widerrufen; was gemerkt ist, wird dann sofort gelöscht.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Dann bleibt nicht nur auf diesem Gerät, was du rechnest: Was du eingetippt hast und die Lösung werden mitgesendet.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>Mit jedem Ereignis gehen seine Zeit, eine Zufallszahl, die jeden Tag wechselt, und Name und Version der App; nichts, was dich oder dein Gerät benennt. Dies sind die Ereignisse und was mit jedem geht:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Exakt</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Exakter Wert</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Mehr Stellen</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Weniger Stellen</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>nicht exakt wahr</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Eine ganze Zahl mit %1 Stellen. Sie beginnt mit %2 und endet mit %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>Betrag von %1 Ende Betrag</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>eckige Klammer auf %1 eckige Klammer zu</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>geschweifte Klammer auf %1 geschweifte Klammer zu</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>Klammer auf %1 Klammer zu</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 durch %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>Bruch %1 durch %2 Ende Bruch</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>Periode %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>Quadratwurzel aus %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>Quadratwurzel aus %1 Ende Wurzel</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>dritte Wurzel aus %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>dritte Wurzel aus %1 Ende Wurzel</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>Wurzel mit Wurzelexponent %1 aus %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>Wurzel mit Wurzelexponent %1 aus %2 Ende Wurzel</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 Index %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 hoch %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 hoch %2 Ende Exponent</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>plus oder minus</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>geteilt durch</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>gleich</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>ist ungleich</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>ist ungefähr</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>ist kleiner als</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>ist größer als</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>ist kleiner oder gleich</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>ist größer oder gleich</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>unendlich</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>Grad</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>Fakultät</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>Pi</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>Sinus</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>Kosinus</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>Tangens</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>Logarithmus</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>natürlicher Logarithmus</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>mal</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 von %2 bis %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: keine Punkte</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: ein Punkt, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: %2 Punkte, von %3 bis %4, am tiefsten %5, am höchsten %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>Baumdiagramm mit %1 Versuchen, Trefferwahrscheinlichkeit %2, Gegenwahrscheinlichkeit %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>Einheitskreis, Winkel %1, volle Umdrehungen %2 und %3, Kosinus %4, Sinus %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>Einheitskreis</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>Quadrant %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>Liniendiagramm</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>Kurve</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>Punktdiagramm</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>Flächendiagramm</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Null hoch null hat keinen Wert.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>Durch null kann man nicht teilen, und eine negative Potenz von null wäre eine solche Division.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>Eine Wurzel mit dem Wurzelexponenten null gibt es nicht.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Eine gerade Wurzel aus einer negativen Zahl ist keine reelle Zahl.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>Eine negative Zahl hat keine reelle Potenz mit irrationalem Exponenten.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>Ob eine Potenz einer negativen Zahl reell ist, hängt vom Exponenten ab.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>Die Zahl hat mehr Stellen, als man ausschreiben kann.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>Das Wurzelzeichen meint die Zahl, die nicht negativ ist. Die Gleichung %1 hat zwei Lösungen: %2 und %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>Die Gleichung %1 hat nur die Lösung null.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>Der Rechenweg setzt null hoch null gleich 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>Der Rechenweg zählt Zahlen über 10¹² als unendlich.</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>Der Rechenweg schreibt Zahlen unter 10⁻¹⁰ als 0.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π wird als Faktor mitgeführt und nicht potenziert.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Eine Variable wird als Faktor mitgeführt und nicht potenziert.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π oder eine Variable im Exponenten oder Wurzelexponenten wird weggelassen.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>Der Rechenweg schreibt eine Potenz ohne die Klammern, die ihre Basis braucht.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Eine Wurzel ist nicht negativ; das zweite Ergebnis ist die andere Lösung der Gleichung.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>Der Rechenweg behält sechs gültige Ziffern einer Dezimalzahl, die er in einen Bruch umwandelt.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Eine Potenz, deren Exponent keine ganze Zahl ist, wird ausgeschrieben, als wäre er eine.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>Der Rechenweg schreibt Nenner mit sechs gültigen Ziffern.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Ein Schritt übersteigt, was der Rechenweg berechnen kann; er rechnet mit unendlich weiter.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>Der Rechenweg rundet, was er schreibt, und rechnet mit allen Stellen weiter.</translation>
    </message>
</context>
</TS>
