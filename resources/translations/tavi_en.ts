<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Fill in your given numbers:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Your input</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Expand</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Rewritten input</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Step</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>No solution among the real numbers</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Still unclear? Watch a video</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Touch to unlock</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Convert</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>How do you like the app?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Thank you!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Cancel the fraction</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Extract a root</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Calculate the power</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Reciprocal</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Input</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Powers and roots</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Preparing your picture</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>The whole solution becomes one long picture. For the best quality, send it as a file.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>History</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Clear history</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Are you sure you want to delete your whole history?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Delete %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Calculation deleted</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>History deleted</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Moved to %0 of %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Calculate something</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Calculation without a formula</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Search the history</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Found: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>No task in the history fits that.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Earlier</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Copy as typed</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>More</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Export the history</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Import a history</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Tasks imported: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>All of these tasks are in the history already.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>This file cannot be read. Nothing was changed.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>This file is too large for a history. Nothing was changed.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>This file holds no history of this app, or it is damaged. Nothing was changed.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>There is no history file in the folder %1. Put one there and try again.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Nothing can be saved at the moment. Your history lasts until you close the app.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>No internet connection</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Accept</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Decline</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Video privacy</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Privacy</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>At the top, choose between a power and a root.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Some steps are easier to understand with a video.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>The videos under a working explain the same topic. Push the row sideways to see more of them.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>They come from YouTube, which then learns your internet address and can store data on your device.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>While the row is locked, nothing at all is loaded from there.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>You can change your mind at any time: tap the lock over the videos.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Introduction</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Privacy policy</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Rate this app</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Community chat</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Visit us:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>All in one:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Other apps:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>These numbers contradict each other. Please check your input.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>The value must be greater than %0 and less than %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>The value must be greater than %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>The value must be less than %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>A value is missing. Please fill in the marked field.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>This is not a number I can read. Please check the marked field.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>The fraction is incomplete. It needs a number above and below the line.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>You cannot divide by zero. Please change the denominator.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Use π only once in each part of a number.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Write π or a letter behind its number, as in 2π or 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Use only one variable in each part of a number.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>This would take more steps than anyone can read. Please try a smaller number here.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>These numbers are too large or too exact for me. Please use smaller or shorter ones.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Tap a field to begin</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Base and exponent are missing</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>The base is missing</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>The exponent is missing</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>The radicand is missing</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>The fraction is not finished</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>A digit is missing</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>This is not a number yet</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>There can be only one decimal point</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>There can be only one fraction bar</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>Zero cannot be a denominator</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π goes only once into a number</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>π or one letter goes behind a number</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Only one letter goes into a number</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>This is too long to write out</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>This is too large or too exact</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>The result is too large and will show as ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>This divides by zero and will show as ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Only digits and π x y z . / − go here</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>What was copied is not one clear number</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>A minus can only stand in front</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>Only one number goes into this field</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Kind of task</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Invalid entry</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Exponent</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Radicand</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Root index</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Root</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Calculate</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Decimal point</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Fraction bar</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Minus sign</translation>
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
        <translation>Share the solution</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Copy as LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Copy as MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>Copy as words</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Copy as picture</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Read aloud from here</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Stop reading aloud</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Save as…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Solution</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Saved as %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>There is not enough room for the file. Make room or choose another place; nothing was saved.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>Nothing can be saved in this folder. Choose another one.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>No program was found that shows pictures. Save the picture instead.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>How it works</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Play again</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>Let's start</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>About the videos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Privacy of the videos: locked</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Privacy of the videos: allowed</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>No video</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Video, not ready yet</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Watch in the browser</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 of %2 stars</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Get § off</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>This link cannot be opened here.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Choose whether you want a power or a root.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>The base; for a root, the number under the root sign. Tap a field to type into it.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>The exponent; for a root, its index. An empty index means 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>The key with the cross deletes; the check mark starts the calculation.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>The working begins with your task. Rows that are too long scroll sideways.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Green: what has just been worked out.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>The result, marked by the bar at its left.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Please wait</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Formulas</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Smaller formulas</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Larger formulas</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>The working appears here.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>English</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>Another language is spoken from the next start on.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Usage figures</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Send which functions are used</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>What is sent</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>This version keeps and sends nothing about its use.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Exact</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Exact value</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>More digits</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Fewer digits</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Copy as text</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>not exactly true</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>A whole number of %1 digits. It begins with %2 and ends with %3.</translation>
    </message>
</context>
</TS>
