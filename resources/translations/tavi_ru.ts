<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Введите данные числа:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Ваш ввод</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Домножить числитель и знаменатель</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Преобразованный ввод</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Шаг</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Ответ</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>Нет решения в действительных числах</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Ещё не ясно? Посмотрите видео</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Нажмите, чтобы открыть</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Преобразовать</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>Вам нравится приложение?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Спасибо!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Сократить дробь</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Извлечь корень</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Возвести в степень</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Обратное число</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Ввод</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Степени и корни</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Картинка готовится</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>Всё решение станет одной длинной картинкой. Чтобы сохранить качество, отправьте её файлом.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>История</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Очистить историю</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Вы действительно хотите удалить всю историю?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Удалить %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Пример удалён</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>История удалена</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Перемещено на место %0 из %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Пока ничего нет. Всё, что вы посчитаете, сохранится здесь, и вы сможете к этому вернуться.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Посчитать что-нибудь</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Пример без формулы</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Искать в истории</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Найдено: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>В истории нет такого примера.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Ранее</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Копировать как введено</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Экспорт истории</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Импорт истории</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Импортировано примеров: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Все эти примеры уже есть в истории.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Этот файл не удаётся прочитать. Ничего не изменено.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Этот файл слишком велик для истории. Ничего не изменено.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>В этом файле нет истории этого приложения, или он повреждён. Ничего не изменено.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>В папке %1 нет файла с историей. Положите его туда и попробуйте снова.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Сейчас ничего нельзя сохранить. История останется, пока вы не закроете приложение.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Нет подключения к интернету</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Принять</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Отклонить</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Конфиденциальность видео</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Видео берутся с YouTube, стороннего сервиса. Если вы согласны, они загружаются с серверов YouTube, как только появятся на экране. Тогда YouTube узнаёт ваш интернет-адрес, может сохранять данные на вашем устройстве и узнать вас, если вы там вошли в аккаунт.

До этого ничего не загружается. Согласие можно отозвать в любой момент замком над видео, а всё остальное работает и без них.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>Всё, что вы считаете, остаётся на этом устройстве. Ваши примеры, настройки и этот ответ хранятся только здесь.

Если для этого указан адрес, приложение загружает из интернета свой список видео и приложений; о вас при этом ничего не передаётся. Ссылки открываются в вашем браузере, а видео берутся с YouTube только после вашего разрешения.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Добро пожаловать в §appname! Здесь вы шаг за шагом узнаете, как вычислять степени и корни.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>Вверху выберите степень или корень.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Нажмите на поле и введите числа. Можно вводить дроби, обыкновенные и десятичные, π и x, y, z.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Нажмите на галочку, и вы увидите каждый шаг. Цвета показывают, что происходит; длинная строка прокручивается вбок.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Ваши примеры остаются в истории, её вы найдёте в меню. Кнопка «Поделиться» делает из решения картинку.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Некоторые шаги легче понять с видео.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Видео под решением объясняют ту же тему. Сдвиньте ряд вбок, чтобы увидеть другие.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Они берутся с YouTube. Он узнаёт ваш интернет-адрес и может сохранять данные на вашем устройстве.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Пока ряд закрыт, оттуда ничего не загружается.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Решение можно изменить в любой момент: нажмите на замок над видео.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Введение</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Оценить приложение</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Чат сообщества</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Заходите к нам:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Всё в одном:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Другие приложения:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Эти числа противоречат друг другу. Проверьте ввод.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>Значение должно быть больше %0 и меньше %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>Значение должно быть больше %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>Значение должно быть меньше %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Не хватает значения. Заполните отмеченное поле.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>Это не похоже на число. Проверьте отмеченное поле.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>Дробь неполная. Ей нужны числитель и знаменатель.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>На ноль делить нельзя. Измените знаменатель.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Пишите π только один раз в каждой части числа.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Пишите π или букву после числа, например 2π или 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Пишите только одну переменную в каждой части числа.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Шагов было бы больше, чем можно прочитать. Возьмите здесь число поменьше.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Эти числа слишком большие или слишком точные. Возьмите числа поменьше или покороче.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Нажмите на поле, чтобы начать</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Не хватает основания и показателя</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Не хватает основания</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Не хватает показателя степени</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Не хватает подкоренного числа</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>Дробь не закончена</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Не хватает цифры</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Это ещё не число</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Десятичная точка может быть только одна</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Дробная черта может быть только одна</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>Знаменатель не может быть нулём</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π входит в число только один раз</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>После числа пишут π или одну букву</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>В число входит только одна буква</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>Слишком длинно, чтобы расписать</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>Слишком большое или слишком точное</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>Ответ слишком велик, будет показан как ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Здесь деление на ноль, будет показано ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Здесь только цифры и π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>Скопированное нельзя понять как число</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>Минус может стоять только впереди</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>В это поле входит только одно число</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Выделить всё</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Вид задания</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Неверный ввод</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Основание</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Показатель</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Подкоренное число</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Показатель корня</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Степень</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Корень</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Стереть</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Вычислить</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Десятичная точка</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Дробная черта</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Знак минус</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>Пи</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>Поделиться решением</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Картинка</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Копировать как LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Копировать как MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>Копировать словами</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Копировать картинкой</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Читать вслух отсюда</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Остановить чтение</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Решение</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Сохранено как %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>Для файла не хватает места. Освободите место или выберите другое; ничего не сохранено.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>В эту папку нельзя сохранять. Выберите другую.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>Не найдена программа для просмотра картинок. Сохраните картинку.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>Как это работает</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Показать ещё раз</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>Начать</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Страница %1 из %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>О видео</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Конфиденциальность видео: закрыто</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Конфиденциальность видео: разрешено</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Нет видео</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Видео, ещё не готово</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Смотреть в браузере</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>Звёзд: %1 из %2</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Получить скидку §</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Эту ссылку нельзя открыть здесь.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Выберите, что вам нужно: степень или корень.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>Основание; у корня это число под знаком корня. Нажмите на поле, чтобы писать в нём.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>Показатель степени; у корня это показатель корня. Пустой показатель корня значит 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Точка, дробная черта и буквы: пишите 0.5, 3/2, π или x. Минус меняет знак поля.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>Клавиша с крестиком стирает; галочка начинает вычисление.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>Решение начинается с вашего примера. Слишком длинные строки прокручиваются вбок.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Красное: с чем работает следующий шаг. Синее и фиолетовое: числитель и знаменатель показателя.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Зелёное: то, что только что вычислено.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>Ответ, отмеченный чертой слева.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Подождите</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>Как в системе</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Светлое</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Тёмное</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Формулы</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Уменьшить формулы</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Увеличить формулы</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>Здесь появится решение.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Русский</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>Другой язык включится при следующем запуске.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Данные об использовании</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Отправлять, какие функции используются</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>Что отправляется</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Эта версия ничего не сохраняет и не отправляет о своём использовании.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Только если вы разрешите это в настройках, приложение сохраняет, какие его функции используются, и отправляет это на %1. Там же разрешение можно отозвать в любой момент; сохранённое тогда сразу удаляется.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Тогда то, что вы считаете, остаётся не только на этом устройстве: введённое вами и решение отправляются тоже.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>С каждым событием передаются его время, случайное число, которое меняется каждый день, а также название и версия приложения; ничего, что указывало бы на вас или ваше устройство. Вот эти события и то, что передаётся с каждым из них:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Точно</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Точное значение</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Больше цифр</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Меньше цифр</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Копировать как текст</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>не вполне верно</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Целое число из %1 цифр. Начинается с %2 и заканчивается на %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>модуль %1 конец модуля</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>квадратная скобка открывается %1 квадратная скобка закрывается</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>фигурная скобка открывается %1 фигурная скобка закрывается</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>скобка открывается %1 скобка закрывается</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 делить на %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>дробь %1 делить на %2 конец дроби</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>в периоде %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>квадратный корень из %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>квадратный корень из %1 конец корня</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>кубический корень из %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>кубический корень из %1 конец корня</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>корень с показателем %1 из %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>корень с показателем %1 из %2 конец корня</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 с индексом %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 в степени %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 в степени %2 конец степени</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>плюс</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>минус</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>плюс-минус</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>разделить на</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>равно</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>не равно</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>приближённо равно</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>меньше</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>больше</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>меньше или равно</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>больше или равно</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>бесконечность</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>градусов</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>процентов</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>факториал</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>пи</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>синус</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>косинус</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>тангенс</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>логарифм</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>натуральный логарифм</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>умножить на</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 от %2 до %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: точек нет</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: одна точка, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: точек %2, от %3 до %4, наименьшее %5, наибольшее %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 при %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>дерево вероятностей, испытаний %1, вероятность успеха %2, неудачи %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>единичная окружность, угол %1, полных оборотов %2 и %3, косинус %4, синус %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>единичная окружность</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>четверть %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>линейный график</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>кривая</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>точечная диаграмма</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>диаграмма с областями</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Ноль в нулевой степени не имеет значения.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>На ноль делить нельзя, а отрицательная степень нуля означала бы именно это.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>Корня с показателем ноль не существует.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Корень чётной степени из отрицательного числа не является действительным числом.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>У отрицательного числа нет действительной степени с иррациональным показателем.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>Действительна ли степень отрицательного числа, зависит от показателя.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>В числе больше цифр, чем можно выписать.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>Знак корня означает неотрицательное число. Уравнение %1 имеет два решения: %2 и %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>Уравнение %1 имеет единственное решение — ноль.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>В решении ноль в нулевой степени считается равным 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>В решении числа больше 10¹² считаются бесконечными.</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>В решении числа меньше 10⁻¹⁰ записываются как 0.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π остаётся множителем и не возводится в степень.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Переменная остаётся множителем и не возводится в степень.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π или переменная в показателе степени или корня опускается.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>В решении степень записана без скобок, которые нужны её основанию.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Корень неотрицателен; второй результат — другое решение уравнения.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>В решении у десятичной дроби, обращаемой в обыкновенную, сохраняются шесть значащих цифр.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Степень с нецелым показателем расписывается так, будто он целый.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>В решении знаменатели записываются с шестью значащими цифрами.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Один шаг выходит за пределы вычислений, и дальше решение идёт с бесконечностью.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>В решении записанное округляется, а вычисления продолжаются со всеми цифрами.</translation>
    </message>
</context>
</TS>
