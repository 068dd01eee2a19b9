<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>दी गई संख्याएँ भरें:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>आपका प्रश्न</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>तुल्य भिन्न बनाएँ</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>बदला हुआ प्रश्न</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>चरण</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>उत्तर</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>वास्तविक संख्याओं में कोई हल नहीं</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>समझ नहीं आया? वीडियो देखें</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>खोलने के लिए छुएँ</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>रूप बदलें</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>आपको यह ऐप कैसा लगा?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>भेजें</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>धन्यवाद!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>त्रुटि</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>भिन्न को सरल करें</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>मूल निकालें</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>घात ज्ञात करें</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>व्युत्क्रम</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>प्रश्न</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>मिटाएँ</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>घात और मूल</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>चित्र बन रहा है</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>पूरा हल एक लंबा चित्र बन जाता है। सबसे साफ़ दिखे, इसके लिए उसे फ़ाइल के रूप में भेजें।</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>इतिहास</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>इतिहास मिटाएँ</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>क्या आप सचमुच पूरा इतिहास मिटाना चाहते हैं?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>बदलें</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>%0 हटाएँ</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>प्रश्न हटाया गया</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>इतिहास मिटाया गया</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>वापस लाएँ</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>%1 में से स्थान %0 पर ले जाया गया</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>अभी यहाँ कुछ नहीं है। आप जो भी हल करेंगे, वह यहाँ रहेगा, ताकि आप उसे फिर देख सकें।</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>कुछ हल करें</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>बिना सूत्र का प्रश्न</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>इतिहास में खोजें</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>खोज मिटाएँ</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>%1 मिले</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>इतिहास में ऐसा कोई प्रश्न नहीं है।</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>आज</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>कल</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>पहले</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>जैसा लिखा वैसा कॉपी करें</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>और</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>इतिहास निर्यात करें</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>इतिहास आयात करें</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>आयात किए गए प्रश्न: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>ये सभी प्रश्न इतिहास में पहले से हैं।</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>यह फ़ाइल पढ़ी नहीं जा सकती। कुछ भी बदला नहीं गया।</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>यह फ़ाइल इतिहास के लिए बहुत बड़ी है। कुछ भी बदला नहीं गया।</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>इस फ़ाइल में इस ऐप का इतिहास नहीं है, या यह ख़राब है। कुछ भी बदला नहीं गया।</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>फ़ोल्डर %1 में इतिहास की कोई फ़ाइल नहीं है। वहाँ फ़ाइल रखें और फिर कोशिश करें।</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>अभी कुछ सहेजा नहीं जा सकता। आपका इतिहास ऐप बंद होने तक रहेगा।</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>सहायता</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>इंटरनेट कनेक्शन नहीं है</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>स्वीकार करें</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>मना करें</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>वीडियो और निजता</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>वीडियो YouTube से आते हैं, जो किसी और की सेवा है। आपके स्वीकार करने पर वे दिखाई देते ही YouTube के सर्वर से लोड होते हैं। तब YouTube को आपका इंटरनेट पता मिल जाता है, वह आपके उपकरण पर डेटा रख सकता है और, यदि आप वहाँ साइन इन हैं, तो आपको पहचान सकता है।

उससे पहले कुछ भी लोड नहीं होता। वीडियो के ऊपर बने ताले से आप अपनी सहमति कभी भी वापस ले सकते हैं; बाकी सब कुछ वीडियो के बिना भी चलता है।</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>निजता</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>आप जो हल करते हैं, वह इसी उपकरण पर रहता है। आपके प्रश्न, आपकी सेटिंग और यह उत्तर केवल यहीं सहेजे जाते हैं।

यदि इसके लिए कोई पता तय है, तो ऐप इंटरनेट से वीडियो और ऐप की अपनी सूची लाता है; आपके बारे में कुछ नहीं भेजा जाता। लिंक आपके ब्राउज़र में खुलते हैं, और वीडियो YouTube से तभी आते हैं जब आपने अनुमति दी हो।</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>§appname में आपका स्वागत है! यहाँ आप चरण दर चरण घात और मूल निकालना सीखते हैं।</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>ऊपर घात या मूल चुनें।</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>किसी खाने को छुएँ और संख्याएँ लिखें। भिन्न, दशमलव, π और x, y, z भी लिख सकते हैं।</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>सही के निशान को छुएँ और हर चरण देखें। रंग बताते हैं कि क्या हो रहा है; लंबी पंक्ति बगल में खिसकाएँ।</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>आपके प्रश्न इतिहास में रहते हैं, जो मेन्यू में है। साझा करने का बटन हल का चित्र बनाता है।</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>कुछ चरण वीडियो से आसानी से समझ में आते हैं।</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>हल के नीचे के वीडियो वही विषय समझाते हैं। और देखने के लिए कतार को बगल में खिसकाएँ।</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>वे YouTube से आते हैं, जिसे तब आपका इंटरनेट पता मिलता है और जो आपके उपकरण पर डेटा रख सकता है।</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>जब तक कतार पर ताला है, वहाँ से कुछ भी लोड नहीं होता।</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>आप अपना निर्णय कभी भी बदल सकते हैं: वीडियो के ऊपर बने ताले को छुएँ।</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>परिचय</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>निजता नीति</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>इस ऐप को रेट करें</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>सामुदायिक चैट</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>हमसे मिलें:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>सब एक में:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>अन्य ऐप:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>ये संख्याएँ परस्पर विरोधी हैं। कृपया जाँचें।</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>मान %0 से बड़ा और %1 से छोटा होना चाहिए।</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>मान %0 से बड़ा होना चाहिए।</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>मान %0 से छोटा होना चाहिए।</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>एक मान नहीं भरा गया। कृपया चिह्नित खाना भरें।</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>इसे संख्या के रूप में नहीं पढ़ा जा सकता। कृपया चिह्नित खाना जाँचें।</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>भिन्न अधूरी है। उसमें अंश और हर दोनों चाहिए।</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>शून्य से भाग नहीं दे सकते। कृपया हर बदलें।</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>संख्या के हर भाग में π केवल एक बार लिखें।</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>π या अक्षर को संख्या के बाद लिखें, जैसे 2π या 3x।</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>संख्या के हर भाग में केवल एक चर लिखें।</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>चरण इतने होंगे कि पढ़े न जा सकें। कृपया यहाँ छोटी संख्या लिखें।</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>ये संख्याएँ बहुत बड़ी हैं या इनमें बहुत अंक हैं। कृपया छोटी संख्याएँ लिखें।</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>शुरू करने के लिए खाना छुएँ</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>आधार और घातांक नहीं भरे हैं</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>आधार नहीं भरा है</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>घातांक नहीं भरा है</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>करणीगत संख्या नहीं भरी है</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>भिन्न पूरी नहीं है</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>एक अंक कम है</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>यह अभी संख्या नहीं है</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>दशमलव बिंदु केवल एक हो सकता है</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>भिन्न रेखा केवल एक हो सकती है</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>हर शून्य नहीं हो सकता</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>एक संख्या में π केवल एक बार</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>संख्या के बाद π या एक अक्षर आता है</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>एक संख्या में केवल एक अक्षर</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>यह लिखने के लिए बहुत लंबा है</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>यह बहुत बड़ा है या बहुत अंक हैं</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>उत्तर बहुत बड़ा है, ∞ दिखेगा</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>यहाँ शून्य से भाग है, ∞ दिखेगा</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>यहाँ केवल अंक और π x y z . / − आते हैं</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>कॉपी किया गया पाठ स्पष्ट संख्या नहीं</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>ऋण चिह्न केवल आगे लग सकता है</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>इस खाने में केवल एक संख्या आती है</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>काटें</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>चिपकाएँ</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>सब चुनें</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>प्रश्न का प्रकार</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>अमान्य प्रविष्टि</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>आधार</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>घातांक</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>करणीगत संख्या</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>मूल की कोटि</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>घात</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>मूल</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>मिटाएँ</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>हल करें</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>दशमलव बिंदु</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>भिन्न रेखा</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>ऋण चिह्न</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>पाई</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>मेन्यू</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>हल साझा करें</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>चित्र</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>LaTeX के रूप में कॉपी करें</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>MathML के रूप में कॉपी करें</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>शब्दों में कॉपी करें</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>चित्र के रूप में कॉपी करें</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>यहाँ से पढ़कर सुनाएँ</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>पढ़कर सुनाना बंद करें</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>इस रूप में सहेजें…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>हल</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>%1 के रूप में सहेजा गया</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>दिखाएँ</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>कॉपी किया गया</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>फ़ाइल के लिए पर्याप्त जगह नहीं है। जगह बनाएँ या कोई और स्थान चुनें; कुछ भी सहेजा नहीं गया।</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>इस फ़ोल्डर में कुछ सहेजा नहीं जा सकता। कोई और चुनें।</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>चित्र दिखाने वाला कोई प्रोग्राम नहीं मिला। इसके बजाय चित्र सहेजें।</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>कैसे चलाएँ</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>फिर से चलाएँ</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>आगे</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>शुरू करें</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>%2 में से पृष्ठ %1</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>वीडियो के बारे में</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>वीडियो की निजता: ताला लगा है</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>वीडियो की निजता: अनुमति है</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>कोई वीडियो नहीं</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>वीडियो, अभी तैयार नहीं</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>वीडियो</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>ब्राउज़र में देखें</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%2 में से %1 तारे</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>§ छूट पाएँ</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>यह लिंक यहाँ नहीं खुल सकता।</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>चुनें कि आपको घात चाहिए या मूल।</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>आधार; मूल में करणी चिह्न के भीतर की संख्या। लिखने के लिए खाने को छुएँ।</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>घातांक; मूल में उसकी कोटि। खाली कोटि का अर्थ 2 है।</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>बिंदु, भिन्न रेखा और अक्षर: 0.5, 3/2, π या x लिखें। ऋण चिह्न खाने का चिह्न बदलता है।</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>क्रॉस वाली कुंजी मिटाती है; सही का निशान हल शुरू करता है।</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>हल आपके प्रश्न से शुरू होता है। बहुत लंबी पंक्तियाँ बगल में खिसकती हैं।</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>लाल: जिस पर अगला चरण काम करता है। नीला और बैंगनी: घातांक का अंश और हर।</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>हरा: जो अभी-अभी निकाला गया।</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>उत्तर, जिसके बाईं ओर पट्टी है।</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>कृपया प्रतीक्षा करें</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>रूप</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>सिस्टम</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>हल्का</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>गहरा</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>सूत्र</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>सूत्र छोटे करें</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>सूत्र बड़े करें</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>पूरा हल यहाँ दिखेगा।</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>भाषा</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>हिन्दी</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>नई भाषा अगली बार ऐप खुलने पर लागू होगी।</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>उपयोग के आँकड़े</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>उपयोग की गई सुविधाएँ भेजें</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>क्या भेजा जाता है</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>यह संस्करण अपने उपयोग के बारे में न कुछ रखता है, न भेजता है।</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>केवल आपके सेटिंग में अनुमति देने पर ऐप यह रखता है कि उसकी कौन-सी सुविधाएँ उपयोग होती हैं, और इसे %1 को भेजता है। आप वहाँ अनुमति कभी भी वापस ले सकते हैं; तब जो रखा गया है, वह तुरंत मिटा दिया जाता है।</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>तब आप जो हल करते हैं, वह केवल इसी उपकरण पर नहीं रहता: आपने जो लिखा और उसका हल भी भेजे जाते हैं।</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>हर घटना के साथ उसका समय, हर दिन बदलने वाली एक यादृच्छिक संख्या, और ऐप का नाम और संस्करण जाता है; ऐसा कुछ नहीं जो आपकी या आपके उपकरण की पहचान बताए। ये हैं घटनाएँ और हर एक के साथ जाने वाली जानकारी:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>सटीक</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>सटीक मान</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>अधिक अंक</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>कम अंक</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>पाठ के रूप में कॉपी करें</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>पूरी तरह सत्य नहीं</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>%1 अंकों की एक पूर्ण संख्या। यह %2 से शुरू और %3 पर समाप्त होती है।</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>निरपेक्ष मान %1 निरपेक्ष मान समाप्त</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>बड़ा कोष्ठक खुला %1 बड़ा कोष्ठक बंद</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>मझला कोष्ठक खुला %1 मझला कोष्ठक बंद</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>कोष्ठक खुला %1 कोष्ठक बंद</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 बटा %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>भिन्न %1 बटा %2 भिन्न समाप्त</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>%1 आवर्ती</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>%1 का वर्गमूल</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>वर्गमूल %1 मूल समाप्त</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>%1 का घनमूल</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>घनमूल %1 मूल समाप्त</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>%2 का मूल, कोटि %1</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>मूल, कोटि %1, संख्या %2 मूल समाप्त</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 पादांक %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 की घात %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 की घात %2 घात समाप्त</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>धन</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>ऋण</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>धन या ऋण</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>भाग</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>बराबर</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>बराबर नहीं है</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>लगभग बराबर</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>छोटा है</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>बड़ा है</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>छोटा या बराबर है</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>बड़ा या बराबर है</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>अनंत</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>डिग्री</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>प्रतिशत</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>क्रमगुणित</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>पाई</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>ज्या</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>कोज्या</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>स्पर्शज्या</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>लघुगणक</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>प्राकृतिक लघुगणक</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>गुणा</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1, %2 से %3 तक</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: कोई बिंदु नहीं</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: एक बिंदु, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: %2 बिंदु, %3 से %4 तक, न्यूनतम %5, अधिकतम %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%2 पर %1</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>%1 परीक्षणों का वृक्ष आरेख, सफलता की प्रायिकता %2, असफलता की %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>इकाई वृत्त, कोण %1, पूरे चक्कर %2 और %3, कोज्या %4, ज्या %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>इकाई वृत्त</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>चतुर्थांश %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>रेखा आलेख</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>वक्र</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>बिंदु आलेख</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>क्षेत्र आलेख</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>शून्य की घात शून्य का कोई मान नहीं होता।</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>शून्य से भाग नहीं दिया जा सकता, और शून्य की ऋणात्मक घात ऐसा ही करती।</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>शून्य कोटि का कोई मूल नहीं होता।</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>ऋणात्मक संख्या का सम मूल वास्तविक संख्या नहीं होता।</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>ऋणात्मक संख्या की अपरिमेय घातांक वाली कोई वास्तविक घात नहीं होती।</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>ऋणात्मक संख्या की घात वास्तविक है या नहीं, यह घातांक पर निर्भर करता है।</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>संख्या में इतने अंक हैं कि उन्हें लिखा नहीं जा सकता।</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>मूल चिह्न का अर्थ वह संख्या है जो ऋणात्मक नहीं है। समीकरण %1 के दो हल हैं: %2 और %3।</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>समीकरण %1 का एकमात्र हल शून्य है।</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>हल में शून्य की घात शून्य को 1 माना जाता है।</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>हल में 10¹² से बड़ी संख्याएँ अनंत मानी जाती हैं।</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>हल में 10⁻¹⁰ से छोटी संख्याएँ 0 लिखी जाती हैं।</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π को गुणनखंड के रूप में साथ रखा जाता है, उसकी घात नहीं ली जाती।</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>चर को गुणनखंड के रूप में साथ रखा जाता है, उसकी घात नहीं ली जाती।</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>घातांक या मूल की कोटि में π या चर छोड़ दिया जाता है।</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>हल में घात को उसके आधार के आवश्यक कोष्ठकों के बिना लिखा जाता है।</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>मूल ऋणात्मक नहीं होता; दूसरा परिणाम समीकरण का दूसरा हल है।</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>जिस दशमलव को हल भिन्न में बदलता है, उसके छह सार्थक अंक ही रखे जाते हैं।</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>जिस घात का घातांक पूर्ण संख्या नहीं है, उसे ऐसे फैलाया जाता है मानो वह पूर्ण हो।</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>हल में हर छह सार्थक अंकों के साथ लिखे जाते हैं।</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>एक चरण हल की गणना-सीमा से बाहर है, और आगे अनंत से गणना होती है।</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>हल में जो लिखा जाता है वह पूर्णांकित होता है, और आगे सभी अंकों से गणना होती है।</translation>
    </message>
</context>
</TS>
