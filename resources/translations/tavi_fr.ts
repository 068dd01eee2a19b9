<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Saisis les nombres donnés :</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Ta saisie</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Écrire une fraction égale</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Saisie transformée</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Étape</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>Pas de solution dans les nombres réels</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Pas encore clair ? Regarde une vidéo</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Touche pour débloquer</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Transformer</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>L’appli te plaît ?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Merci !</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Simplifier la fraction</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Extraire la racine</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Calculer la puissance</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Inverse</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Saisie</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Puissances et racines</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Ton image se prépare</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>Toute la solution devient une longue image. Pour la meilleure qualité, envoie-la comme fichier.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Veux-tu vraiment effacer tout ton historique ?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Supprimer %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Calcul supprimé</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>Historique effacé</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Déplacé en position %0 sur %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Rien ici pour l’instant. Tout ce que tu calcules est gardé ici, et tu peux y revenir.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Faire un calcul</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Calcul sans formule</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Chercher dans l’historique</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Trouvés : %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>Aucun calcul de l’historique ne correspond.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Plus tôt</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Copier tel que saisi</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Exporter l’historique</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Importer un historique</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Calculs importés : %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Tous ces calculs sont déjà dans l’historique.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Ce fichier ne peut pas être lu. Rien n’a été changé.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Ce fichier est trop grand pour un historique. Rien n’a été changé.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>Ce fichier ne contient pas d’historique de cette app, ou il est abîmé. Rien n’a été changé.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>Il n’y a pas de fichier d’historique dans le dossier %1. Mets-en un là et réessaie.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Rien ne peut être enregistré pour le moment. Ton historique reste jusqu’à ce que tu fermes l’appli.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Pas de connexion Internet</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Refuser</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Vidéos et vie privée</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Les vidéos viennent de YouTube, un service extérieur. Si tu acceptes, elles sont chargées depuis les serveurs de YouTube dès qu’elles apparaissent. YouTube apprend alors ton adresse Internet, peut enregistrer des données sur ton appareil et te reconnaître si tu y es connecté.

Avant cela, rien n’est chargé. Tu peux retirer ton accord à tout moment avec le cadenas au-dessus des vidéos, et tout le reste fonctionne sans elles.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Vie privée</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>Ce que tu calcules reste sur cet appareil. Tes exercices, tes réglages et cette réponse sont enregistrés seulement ici.

Si une adresse est prévue pour cela, l’appli va chercher sa liste de vidéos et d’applis sur Internet ; rien sur toi n’est envoyé. Les liens s’ouvrent dans ton navigateur, et les vidéos ne viennent de YouTube qu’après ton accord.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Bienvenue dans §appname ! Ici, tu apprends étape par étape à calculer des puissances et des racines.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>En haut, choisis entre puissance et racine.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Touche un champ et tape tes nombres. Fractions, nombres décimaux, π et x, y, z sont aussi les bienvenus.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Touche la coche, et tu vois chaque étape. Les couleurs montrent ce qui se passe ; une longue ligne défile sur le côté.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Tes exercices restent dans l’historique, que tu trouves dans le menu. Le bouton de partage fait une image de la solution.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Certaines étapes se comprennent mieux avec une vidéo.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Les vidéos sous une solution expliquent le même sujet. Fais glisser la rangée pour en voir d’autres.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Elles viennent de YouTube, qui apprend alors ton adresse Internet et peut enregistrer des données sur ton appareil.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Tant que la rangée est verrouillée, rien n’est chargé de là-bas.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Tu peux changer d’avis à tout moment : touche le cadenas au-dessus des vidéos.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Introduction</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Vie privée</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Noter cette appli</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Chat de la communauté</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Rends-nous visite :</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Tout en un :</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Autres applis :</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Ces nombres se contredisent. Vérifie ta saisie.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>La valeur doit être plus grande que %0 et plus petite que %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>La valeur doit être plus grande que %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>La valeur doit être plus petite que %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Il manque une valeur. Remplis le champ marqué.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>Je n’arrive pas à lire ce nombre. Vérifie le champ marqué.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>La fraction est incomplète. Il lui faut un numérateur et un dénominateur.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>On ne peut pas diviser par zéro. Change le dénominateur.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Écris π une seule fois dans chaque partie d’un nombre.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Écris π ou une lettre après le nombre, comme dans 2π ou 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Écris une seule variable dans chaque partie d’un nombre.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Cela ferait plus d’étapes qu’on ne peut en lire. Essaie un nombre plus petit ici.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Ces nombres sont trop grands ou trop précis pour moi. Prends-en de plus petits ou de plus courts.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Touche d’abord un champ</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Il manque la base et l’exposant</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Il manque la base</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Il manque l’exposant</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Il manque le radicande</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>La fraction n’est pas finie</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Il manque un chiffre</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Ce n’est pas encore un nombre</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Un seul point décimal est possible</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Une seule barre de fraction est possible</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>Le dénominateur ne peut pas être zéro</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π une seule fois par nombre</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>Après le nombre : π ou une lettre</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Une seule lettre par nombre</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>C’est trop long à écrire en entier</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>C’est trop grand ou trop précis</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>Résultat trop grand : il s’affichera comme ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Division par zéro : ∞ s’affichera</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Ici, seulement des chiffres et π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>Le texte copié n’est pas un nombre clair</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>Le moins ne peut être que devant</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>Un seul nombre dans ce champ</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Type d’exercice</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Saisie non valable</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Exposant</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Radicande</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Indice</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Racine</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Calculer</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Point décimal</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Barre de fraction</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Signe moins</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>Partager la solution</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Copier en LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Copier en MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>Copier en toutes lettres</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Copier comme image</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Écouter à partir d’ici</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Solution</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>Il n’y a pas assez de place pour le fichier. Fais de la place ou choisis un autre endroit ; rien n’a été enregistré.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>Impossible d’enregistrer dans ce dossier. Choisis-en un autre.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>Aucun programme pour afficher des images n’a été trouvé. Enregistre plutôt l’image.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>Comment ça marche</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Rejouer</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>C’est parti !</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>À propos des vidéos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Vie privée et vidéos : verrouillé</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Vie privée et vidéos : autorisé</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Pas de vidéo</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Vidéo, pas encore prête</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Voir dans le navigateur</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 étoiles sur %2</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Profite de § de remise</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Ce lien ne peut pas être ouvert ici.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Choisis si tu veux une puissance ou une racine.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>La base ; pour une racine, le nombre sous le radical. Touche un champ pour y écrire.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>L’exposant ; pour une racine, son indice. Un indice vide vaut 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Point, barre et lettres : tape 0.5, 3/2, π ou x. Le moins change le signe du champ.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>La touche avec la croix supprime ; la coche lance le calcul.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>La solution commence par ton exercice. Les lignes trop longues défilent sur le côté.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Rouge : ce sur quoi porte l’étape suivante. Bleu et violet : numérateur et dénominateur d’un exposant.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Vert : ce qui vient d’être calculé.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>Le résultat, marqué par la barre à sa gauche.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Patiente un instant</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Formules</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Formules plus petites</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Formules plus grandes</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>La solution s’affichera ici.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Français</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>La nouvelle langue vaut dès le prochain démarrage.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Données d’utilisation</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Envoyer les fonctions utilisées</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>Ce qui est envoyé</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Cette version ne garde et n’envoie rien sur son utilisation.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Seulement si tu l’autorises dans les réglages, l’appli garde quelles fonctions sont utilisées et l’envoie à %1. Tu peux y retirer ton accord à tout moment ; ce qui est gardé est alors effacé aussitôt.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Dans ce cas, ce que tu calcules ne reste pas seulement sur cet appareil : ce que tu as saisi et la solution sont envoyés aussi.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>Avec chaque événement partent son heure, un nombre au hasard qui change chaque jour, ainsi que le nom et la version de l’appli ; rien qui te nomme, toi ou ton appareil. Voici les événements et ce qui part avec chacun :</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Valeur exacte</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Plus de chiffres</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Moins de chiffres</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Copier comme texte</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>pas exactement vrai</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Un nombre entier de %1 chiffres. Il commence par %2 et se termine par %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>valeur absolue de %1 fin de valeur absolue</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>crochet ouvrant %1 crochet fermant</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>accolade ouvrante %1 accolade fermante</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>parenthèse ouvrante %1 parenthèse fermante</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>fraction %1 sur %2 fin de fraction</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>période %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>racine carrée de %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>racine carrée de %1 fin de racine</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>racine cubique de %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>racine cubique de %1 fin de racine</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>racine d’indice %1 de %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>racine d’indice %1 de %2 fin de racine</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 indice %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 puissance %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 puissance %2 fin d’exposant</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>moins</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>plus ou moins</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>divisé par</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>égale</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>est différent de</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>est à peu près égal à</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>est inférieur à</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>est supérieur à</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>est inférieur ou égal à</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>est supérieur ou égal à</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>infini</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>degrés</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>factorielle</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>pi</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>sinus</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>cosinus</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>tangente</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>logarithme</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>logarithme népérien</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>fois</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 de %2 à %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1 : aucun point</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1 : un point, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1 : %2 points, de %3 à %4, minimum %5, maximum %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>arbre de probabilités de %1 essais, probabilité de succès %2, d’échec %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>cercle trigonométrique, angle %1, tours complets %2 et %3, cosinus %4, sinus %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>cercle trigonométrique</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>quadrant %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>graphique en lignes</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>courbe</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>nuage de points</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>graphique en aires</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Zéro puissance zéro n’a pas de valeur.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>On ne peut pas diviser par zéro, et une puissance négative de zéro reviendrait à le faire.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>Il n’existe pas de racine d’indice zéro.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Une racine d’indice pair d’un nombre négatif n’est pas un nombre réel.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>Un nombre négatif n’a pas de puissance réelle d’exposant irrationnel.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>C’est l’exposant qui décide si une puissance d’un nombre négatif est réelle.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>Le nombre a plus de chiffres qu’on ne peut en écrire.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>Le signe racine désigne le nombre qui n’est pas négatif. L’équation %1 a deux solutions : %2 et %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>L’équation %1 a zéro pour seule solution.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>Le calcul prend zéro puissance zéro égal à 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>Le calcul considère comme infinis les nombres supérieurs à 10¹².</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>Le calcul écrit 0 pour les nombres inférieurs à 10⁻¹⁰.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π est conservé comme facteur et n’est pas élevé à la puissance.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Une variable est conservée comme facteur et n’est pas élevée à la puissance.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π ou une variable dans l’exposant ou dans l’indice est omis.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>Le calcul écrit une puissance sans les parenthèses dont sa base a besoin.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Une racine n’est pas négative ; le second résultat est l’autre solution de l’équation.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>Le calcul garde six chiffres significatifs d’un nombre décimal qu’il transforme en fraction.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Une puissance dont l’exposant n’est pas un entier est développée comme s’il en était un.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>Le calcul écrit les dénominateurs avec six chiffres significatifs.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Une étape dépasse ce que le calcul peut effectuer, et il continue avec l’infini.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>Le calcul arrondit ce qu’il écrit et continue avec tous les chiffres.</translation>
    </message>
</context>
</TS>
