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
        <source>Your Input</source>
        <translation>Deine Eingabe</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Erweitern</translation>
    </message>
    <message id="Modified Input">
        <source>Modified Input</source>
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
        <source>noSolution</source>
        <translation>Keine Lösung in den reellen Zahlen</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>recommendedVideoIfUnclear</source>
        <translation>Noch unklar? Sieh dir ein Video an</translation>
    </message>
    <message id="touchTounlock">
        <source>touchTounlock</source>
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
        <source>Rate</source>
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
        <source>Thanks</source>
        <translation>Danke!</translation>
    </message>
    <message id="error">
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel (math)</source>
        <translation>Bruch kürzen</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Wurzel ziehen</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate power</source>
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
        <source>Calculate Title</source>
        <translation>Potenzen und Wurzeln</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>sharingImageQualityTitle</source>
        <translation>Dein Bild entsteht</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>sharingImageQualityText</source>
        <translation>Der ganze Lösungsweg wird ein langes Bild. Am schärfsten bleibt es, wenn du es als Datei verschickst.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message id="Clear History">
        <source>Clear History</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure to delete your whole history?</source>
        <translation>Möchtest du wirklich den ganzen Verlauf löschen?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="historyDelete">
        <source>historyDelete</source>
        <translation>%0 löschen</translation>
    </message>
    <message id="historyDeleted">
        <source>historyDeleted</source>
        <translation>Aufgabe gelöscht</translation>
    </message>
    <message id="historyCleared">
        <source>historyCleared</source>
        <translation>Verlauf gelöscht</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message id="historyMoved">
        <source>historyMoved</source>
        <translation>Verschoben auf %0 von %1</translation>
    </message>
    <message id="historyEmpty">
        <source>historyEmpty</source>
        <translation>Noch nichts da. Alles, was du rechnest, steht später hier, und du kannst es wieder öffnen.</translation>
    </message>
    <message id="historyCalculate">
        <source>historyCalculate</source>
        <translation>Etwas berechnen</translation>
    </message>
    <message id="historyUntitled">
        <source>historyUntitled</source>
        <translation>Aufgabe ohne Formel</translation>
    </message>
    <message id="nothingIsKept">
        <source>nothingIsKept</source>
        <translation>Gerade kann nichts gespeichert werden. Dein Verlauf bleibt, bis du die App schließt.</translation>
    </message>
    <message id="Assistance">
        <source>Assistance</source>
        <translation>Hilfe</translation>
    </message>
    <message id="noInternet">
        <source>noInternet</source>
        <translation>Keine Internetverbindung</translation>
    </message>
    <message id="dsgvoAccept">
        <source>dsgvoAccept</source>
        <translation>Zustimmen</translation>
    </message>
    <message id="dsgvoDecline">
        <source>dsgvoDecline</source>
        <translation>Ablehnen</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>dsgvoYoutubeTitle</source>
        <translation>Datenschutz bei Videos</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>dsgvoYoutubeText</source>
        <translation>Die Videos kommen von YouTube, einem fremden Dienst. Wenn du zustimmst, werden sie von den Servern von YouTube geladen, sobald sie zu sehen sind. YouTube erfährt dabei deine Internetadresse, kann Daten auf deinem Gerät speichern und dich wiedererkennen, wenn du dort angemeldet bist.

Vorher wird nichts geladen. Mit dem Schloss über den Videos kannst du deine Zustimmung jederzeit widerrufen; alles andere geht auch ohne Videos.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>dsgvoTitlePro</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>dsgvoTextPro</source>
        <translation>Was du rechnest, bleibt auf diesem Gerät. Deine Aufgaben, deine Einstellungen und diese Antwort werden nur hier gespeichert.

Ist eine Adresse dafür eingetragen, holt die App ihre Liste von Videos und Apps aus dem Internet; über dich wird dabei nichts gesendet. Links öffnen sich in deinem Browser, und Videos kommen erst von YouTube, wenn du es erlaubt hast.</translation>
    </message>
    <message id="onboardingA">
        <source>onboardingA</source>
        <translation>Willkommen bei §appname! Hier lernst du Schritt für Schritt, wie man Potenzen und Wurzeln berechnet.</translation>
    </message>
    <message id="onboardingB">
        <source>onboardingB</source>
        <translation>Wähle oben zwischen Potenz und Wurzel.</translation>
    </message>
    <message id="onboardingC">
        <source>onboardingC</source>
        <translation>Tippe auf ein Feld und gib deine Zahlen ein. Auch Brüche, Dezimalzahlen, π und x, y, z sind willkommen.</translation>
    </message>
    <message id="onboardingD">
        <source>onboardingD</source>
        <translation>Tippe auf den Haken, dann siehst du jeden Schritt. Farben zeigen, was geschieht; lange Zeilen lassen sich seitwärts schieben.</translation>
    </message>
    <message id="onboardingE">
        <source>onboardingE</source>
        <translation>Deine Aufgaben bleiben im Verlauf, den du im Menü findest. Der Teilen-Knopf macht aus einer Lösung ein Bild.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>onboardingYoutube1</source>
        <translation>Manche Schritte versteht man leichter mit einem Video.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>onboardingYoutube2</source>
        <translation>Die Videos unter einer Lösung erklären das gleiche Thema. Schiebe die Reihe seitwärts, um mehr zu sehen.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>onboardingYoutube3</source>
        <translation>Sie kommen von YouTube. YouTube erfährt dabei deine Internetadresse und kann Daten auf deinem Gerät speichern.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>onboardingYoutube4</source>
        <translation>Solange die Reihe gesperrt ist, wird von dort nichts geladen.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>onboardingYoutube5</source>
        <translation>Du kannst dich jederzeit anders entscheiden: Tippe auf das Schloss über den Videos.</translation>
    </message>
    <message id="introduction">
        <source>introduction</source>
        <translation>Einführung</translation>
    </message>
    <message id="privacyPolicy">
        <source>privacyPolicy</source>
        <translation>Datenschutz</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this App</source>
        <translation>Diese App bewerten</translation>
    </message>
    <message id="Discord">
        <source>Discord</source>
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
        <source>oppositionError</source>
        <translation>Diese Zahlen widersprechen sich. Bitte prüfe deine Eingabe.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>mustBeBiggerThanXAndLessThanY</source>
        <translation>Der Wert muss größer als %0 und kleiner als %1 sein.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>mustBeGreatherThanX</source>
        <translation>Der Wert muss größer als %0 sein.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>mustBeLessThanX</source>
        <translation>Der Wert muss kleiner als %0 sein.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>notEnoughInputValues</source>
        <translation>Es fehlt ein Wert. Bitte fülle das markierte Feld aus.</translation>
    </message>
    <message id="inputParameterError">
        <source>inputParameterError</source>
        <translation>Das kann ich nicht als Zahl lesen. Bitte prüfe das markierte Feld.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>fractionIncomplete</source>
        <translation>Der Bruch ist unvollständig. Er braucht einen Zähler und einen Nenner.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>inputZeroInDenominator</source>
        <translation>Durch null kann man nicht teilen. Bitte ändere den Nenner.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>toManyNaturalConstantsInSubstring</source>
        <translation>Schreibe π in jedem Teil einer Zahl nur einmal.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>naturalConstantInWrongPositionOfSubstring</source>
        <translation>Schreibe π oder einen Buchstaben hinter die Zahl, wie in 2π oder 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>toManyVariablesInSubstring</source>
        <translation>Schreibe in jedem Teil einer Zahl nur eine Variable.</translation>
    </message>
    <message id="calculationTooLong">
        <source>calculationTooLong</source>
        <translation>Das wären mehr Schritte, als man lesen kann. Bitte nimm hier eine kleinere Zahl.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>calculationOutOfRange</source>
        <translation>Diese Zahlen sind mir zu groß oder zu genau. Bitte nimm kleinere oder kürzere.</translation>
    </message>
    <message id="hintTapField">
        <source>hintTapField</source>
        <translation>Tippe zuerst auf ein Feld</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>hintBaseAndExponent</source>
        <translation>Basis und Exponent fehlen noch</translation>
    </message>
    <message id="hintBase">
        <source>hintBase</source>
        <translation>Die Basis fehlt noch</translation>
    </message>
    <message id="hintExponent">
        <source>hintExponent</source>
        <translation>Der Exponent fehlt noch</translation>
    </message>
    <message id="hintRadicand">
        <source>hintRadicand</source>
        <translation>Der Radikand fehlt noch</translation>
    </message>
    <message id="hintFraction">
        <source>hintFraction</source>
        <translation>Der Bruch ist noch nicht fertig</translation>
    </message>
    <message id="hintDigit">
        <source>hintDigit</source>
        <translation>Es fehlt noch eine Ziffer</translation>
    </message>
    <message id="hintNumber">
        <source>hintNumber</source>
        <translation>Das ist noch keine Zahl</translation>
    </message>
    <message id="hintOneBar">
        <source>hintOneBar</source>
        <translation>Es kann nur einen Bruchstrich geben</translation>
    </message>
    <message id="hintZero">
        <source>hintZero</source>
        <translation>Null kann kein Nenner sein</translation>
    </message>
    <message id="hintOnePi">
        <source>hintOnePi</source>
        <translation>π passt nur einmal in eine Zahl</translation>
    </message>
    <message id="hintOrder">
        <source>hintOrder</source>
        <translation>π und Buchstaben stehen hinter der Zahl</translation>
    </message>
    <message id="hintOneLetter">
        <source>hintOneLetter</source>
        <translation>Nur ein Buchstabe passt in eine Zahl</translation>
    </message>
    <message id="hintTooLong">
        <source>hintTooLong</source>
        <translation>Das ist zu lang zum Ausschreiben</translation>
    </message>
    <message id="hintOutOfRange">
        <source>hintOutOfRange</source>
        <translation>Das ist zu groß oder zu genau</translation>
    </message>
    <message id="hintInfinite">
        <source>hintInfinite</source>
        <translation>Das Ergebnis ist zu groß und erscheint als ∞</translation>
    </message>
    <message id="hintPaste">
        <source>hintPaste</source>
        <translation>Das Kopierte ist keine eindeutige Zahl</translation>
    </message>
    <message id="hintPasteMinus">
        <source>hintPasteMinus</source>
        <translation>Ein Minus kann nur vorne stehen</translation>
    </message>
    <message id="hintPastePower">
        <source>hintPastePower</source>
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
        <source>menuButton</source>
        <translation>Menü</translation>
    </message>
    <message id="shareButton">
        <source>shareButton</source>
        <translation>Lösung teilen</translation>
    </message>
    <message id="sharingSave">
        <source>sharingSave</source>
        <translation>Speichern</translation>
    </message>
    <message id="sharingPicture">
        <source>sharingPicture</source>
        <translation>Bild</translation>
    </message>
    <message id="copyAsLatex">
        <source>copyAsLatex</source>
        <translation>Als LaTeX kopieren</translation>
    </message>
    <message id="copyAsMathMl">
        <source>copyAsMathMl</source>
        <translation>Als MathML kopieren</translation>
    </message>
    <message id="copyAsWords">
        <source>copyAsWords</source>
        <translation>In Worten kopieren</translation>
    </message>
    <message id="copyAsPicture">
        <source>copyAsPicture</source>
        <translation>Als Bild kopieren</translation>
    </message>
    <message id="sharingSaveAs">
        <source>sharingSaveAs</source>
        <translation>Speichern unter …</translation>
    </message>
    <message id="sharingSaveHere">
        <source>sharingSaveHere</source>
        <translation>Speichern</translation>
    </message>
    <message id="sharingCopy">
        <source>sharingCopy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="sharingOpen">
        <source>sharingOpen</source>
        <translation>Öffnen</translation>
    </message>
    <message id="sharingFileName">
        <source>sharingFileName</source>
        <translation>Lösung</translation>
    </message>
    <message id="sharingSaved">
        <source>sharingSaved</source>
        <translation>Gespeichert unter %1</translation>
    </message>
    <message id="sharingCopied">
        <source>sharingCopied</source>
        <translation>Kopiert</translation>
    </message>
    <message id="sharingNoRoom">
        <source>sharingNoRoom</source>
        <translation>Für das Bild ist nicht genug Platz. Schaffe Platz oder wähle einen anderen Ort; es wurde nichts gespeichert.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>sharingNotWritable</source>
        <translation>In diesem Ordner lässt sich nichts speichern. Wähle einen anderen.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>sharingNoViewer</source>
        <translation>Es wurde kein Programm gefunden, das Bilder zeigt. Speichere das Bild stattdessen.</translation>
    </message>
    <message id="manualButton">
        <source>manualButton</source>
        <translation>So geht es</translation>
    </message>
    <message id="animateAgainButton">
        <source>animateAgainButton</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message id="next">
        <source>next</source>
        <translation>Weiter</translation>
    </message>
    <message id="letsStart">
        <source>letsStart</source>
        <translation>Los geht's</translation>
    </message>
    <message id="pageOf">
        <source>pageOf</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="videoGuide">
        <source>videoGuide</source>
        <translation>Über die Videos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>videoPrivacyLocked</source>
        <translation>Datenschutz der Videos: gesperrt</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>videoPrivacyOpen</source>
        <translation>Datenschutz der Videos: erlaubt</translation>
    </message>
    <message id="videoMissing">
        <source>videoMissing</source>
        <translation>Kein Video</translation>
    </message>
    <message id="videoCovered">
        <source>videoCovered</source>
        <translation>Video, noch nicht bereit</translation>
    </message>
    <message id="videoReady">
        <source>videoReady</source>
        <translation>Video</translation>
    </message>
    <message id="videoOutside">
        <source>videoOutside</source>
        <translation>Im Browser ansehen</translation>
    </message>
    <message id="ratingStars">
        <source>ratingStars</source>
        <translation>%1 von %2 Sternen</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>grabAdsDiscountForPercentage</source>
        <translation>§ Rabatt sichern</translation>
    </message>
    <message id="linkNotOpened">
        <source>linkNotOpened</source>
        <translation>Dieser Link lässt sich hier nicht öffnen.</translation>
    </message>
    <message id="manual1">
        <source>manual1</source>
        <translation>Wähle, ob du eine Potenz oder eine Wurzel willst.</translation>
    </message>
    <message id="manual2">
        <source>manual2</source>
        <translation>Die Basis, bei Wurzeln die Zahl unter dem Wurzelzeichen. Tippe auf ein Feld, um hineinzuschreiben.</translation>
    </message>
    <message id="manual3">
        <source>manual3</source>
        <translation>Der Exponent, bei Wurzeln der Wurzelexponent. Leer bedeutet er 2.</translation>
    </message>
    <message id="manual4">
        <source>manual4</source>
        <translation>Punkt, Bruchstrich und Buchstaben: Schreibe 0.5, 3/2, π oder x. Minus wechselt das Vorzeichen des Feldes.</translation>
    </message>
    <message id="manual5">
        <source>manual5</source>
        <translation>Links löschst du, der Haken startet die Rechnung.</translation>
    </message>
    <message id="manual6">
        <source>manual6</source>
        <translation>Die Lösung beginnt mit deiner Aufgabe. Zu lange Zeilen lassen sich seitwärts schieben.</translation>
    </message>
    <message id="manual7">
        <source>manual7</source>
        <translation>Rot: womit der nächste Schritt arbeitet. Blau und Violett: Zähler und Nenner eines Exponenten.</translation>
    </message>
    <message id="manual8">
        <source>manual8</source>
        <translation>Grün: was gerade ausgerechnet wurde.</translation>
    </message>
    <message id="manual9">
        <source>manual9</source>
        <translation>Das Ergebnis, zu erkennen am Balken links.</translation>
    </message>
    <message id="pleaseWait">
        <source></source>
        <translation>Bitte warten</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="chartLine">
        <source>chartLine</source>
        <translation>Liniendiagramm</translation>
    </message>
    <message id="chartCurve">
        <source>chartCurve</source>
        <translation>Kurve</translation>
    </message>
    <message id="chartScatter">
        <source>chartScatter</source>
        <translation>Punktdiagramm</translation>
    </message>
    <message id="chartArea">
        <source>chartArea</source>
        <translation>Flächendiagramm</translation>
    </message>
    <message id="chartAxisRange">
        <source>chartAxisRange</source>
        <translation>%1 von %2 bis %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>chartNoPoints</source>
        <translation>%1: keine Punkte</translation>
    </message>
    <message id="chartOnePoint">
        <source>chartOnePoint</source>
        <translation>%1: ein Punkt, %2</translation>
    </message>
    <message id="chartPoints">
        <source>chartPoints</source>
        <translation>%1: %2 Punkte, von %3 bis %4, am tiefsten %5, am höchsten %6</translation>
    </message>
    <message id="chartValueAt">
        <source>chartValueAt</source>
        <translation>%1 bei %2</translation>
    </message>
    <message id="chartTree">
        <source>chartTree</source>
        <translation>Baumdiagramm mit %1 Versuchen, Trefferwahrscheinlichkeit %2, Gegenwahrscheinlichkeit %3</translation>
    </message>
    <message id="chartAngle">
        <source>chartAngle</source>
        <translation>Einheitskreis, Winkel %1, volle Umdrehungen %2 und %3, Kosinus %4, Sinus %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>chartNoAngle</source>
        <translation>Einheitskreis</translation>
    </message>
    <message id="chartQuadrant">
        <source>chartQuadrant</source>
        <translation>Quadrant %1</translation>
    </message>
    <message id="mathPlus">
        <source>mathPlus</source>
        <translation>plus</translation>
    </message>
    <message id="mathMinus">
        <source>mathMinus</source>
        <translation>minus</translation>
    </message>
    <message id="mathPlusMinus">
        <source>mathPlusMinus</source>
        <translation>plus oder minus</translation>
    </message>
    <message id="mathTimes">
        <source>mathTimes</source>
        <translation>mal</translation>
    </message>
    <message id="mathDividedBy">
        <source>mathDividedBy</source>
        <translation>geteilt durch</translation>
    </message>
    <message id="mathEquals">
        <source>mathEquals</source>
        <translation>gleich</translation>
    </message>
    <message id="mathNotEqual">
        <source>mathNotEqual</source>
        <translation>ist ungleich</translation>
    </message>
    <message id="mathApproximately">
        <source>mathApproximately</source>
        <translation>ist ungefähr</translation>
    </message>
    <message id="mathLess">
        <source>mathLess</source>
        <translation>ist kleiner als</translation>
    </message>
    <message id="mathGreater">
        <source>mathGreater</source>
        <translation>ist größer als</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>mathLessOrEqual</source>
        <translation>ist kleiner oder gleich</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>mathGreaterOrEqual</source>
        <translation>ist größer oder gleich</translation>
    </message>
    <message id="mathInfinity">
        <source>mathInfinity</source>
        <translation>unendlich</translation>
    </message>
    <message id="mathDegrees">
        <source>mathDegrees</source>
        <translation>Grad</translation>
    </message>
    <message id="mathPercent">
        <source>mathPercent</source>
        <translation>Prozent</translation>
    </message>
    <message id="mathFactorial">
        <source>mathFactorial</source>
        <translation>Fakultät</translation>
    </message>
    <message id="mathFraction">
        <source>mathFraction</source>
        <translation>%1 durch %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>mathLongFraction</source>
        <translation>Bruch %1 durch %2 Ende Bruch</translation>
    </message>
    <message id="mathSquareRoot">
        <source>mathSquareRoot</source>
        <translation>Quadratwurzel aus %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>mathLongSquareRoot</source>
        <translation>Quadratwurzel aus %1 Ende Wurzel</translation>
    </message>
    <message id="mathCubeRoot">
        <source>mathCubeRoot</source>
        <translation>dritte Wurzel aus %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>mathLongCubeRoot</source>
        <translation>dritte Wurzel aus %1 Ende Wurzel</translation>
    </message>
    <message id="mathRoot">
        <source>mathRoot</source>
        <translation>Wurzel mit Wurzelexponent %1 aus %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>mathLongRoot</source>
        <translation>Wurzel mit Wurzelexponent %1 aus %2 Ende Wurzel</translation>
    </message>
    <message id="mathPower">
        <source>mathPower</source>
        <translation>%1 hoch %2</translation>
    </message>
    <message id="mathLongPower">
        <source>mathLongPower</source>
        <translation>%1 hoch %2 Ende Exponent</translation>
    </message>
    <message id="mathIndex">
        <source>mathIndex</source>
        <translation>%1 Index %2</translation>
    </message>
    <message id="mathParentheses">
        <source>mathParentheses</source>
        <translation>Klammer auf %1 Klammer zu</translation>
    </message>
    <message id="mathBrackets">
        <source>mathBrackets</source>
        <translation>eckige Klammer auf %1 eckige Klammer zu</translation>
    </message>
    <message id="mathBraces">
        <source>mathBraces</source>
        <translation>geschweifte Klammer auf %1 geschweifte Klammer zu</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>mathAbsoluteValue</source>
        <translation>Betrag von %1 Ende Betrag</translation>
    </message>
    <message id="mathSine">
        <source>mathSine</source>
        <translation>Sinus</translation>
    </message>
    <message id="mathCosine">
        <source>mathCosine</source>
        <translation>Kosinus</translation>
    </message>
    <message id="mathTangent">
        <source>mathTangent</source>
        <translation>Tangens</translation>
    </message>
    <message id="mathLogarithm">
        <source>mathLogarithm</source>
        <translation>Logarithmus</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>mathNaturalLogarithm</source>
        <translation>natürlicher Logarithmus</translation>
    </message>
    <message id="mathPi">
        <source>mathPi</source>
        <translation>Pi</translation>
    </message>
    <message id="settings">
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="appearance">
        <source>appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message id="asSystem">
        <source>asSystem</source>
        <translation>System</translation>
    </message>
    <message id="light">
        <source>light</source>
        <translation>Hell</translation>
    </message>
    <message id="dark">
        <source>dark</source>
        <translation>Dunkel</translation>
    </message>
    <message id="language">
        <source>language</source>
        <translation>Sprache</translation>
    </message>
    <message id="languageName">
        <source>languageName</source>
        <translation>Deutsch</translation>
    </message>
    <message id="fromNextStart">
        <source>fromNextStart</source>
        <translation>Eine andere Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message id="measurement">
        <source>measurement</source>
        <translation>Nutzungszahlen</translation>
    </message>
    <message id="measurementAccept">
        <source>measurementAccept</source>
        <translation>Senden, welche Funktionen genutzt werden</translation>
    </message>
    <message id="measurementWhat">
        <source>measurementWhat</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message id="measurementNone">
        <source>measurementNone</source>
        <translation>Diese Version merkt sich nichts über ihre Nutzung und sendet nichts.</translation>
    </message>
    <message id="measurementText">
        <source>measurementText</source>
        <translation>Nur wenn du es in den Einstellungen erlaubst, merkt sich die App, welche ihrer Funktionen genutzt werden, und sendet das an %1. Du kannst das dort jederzeit widerrufen; was gemerkt ist, wird dann sofort gelöscht.

Mit jedem Ereignis gehen seine Zeit, eine Zufallszahl, die jeden Tag wechselt, und Name und Version der App; nichts, was dich oder dein Gerät benennt. Dies sind die Ereignisse und was mit jedem geht:</translation>
    </message>
</context>
</TS>
