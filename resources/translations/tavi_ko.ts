<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>주어진 수를 입력하세요:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>입력한 식</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>분모와 분자에 같은 수 곱하기</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>바꾼 식</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>단계</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>실수 범위에서 해가 없습니다</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>아직 어렵나요? 동영상을 보세요</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>눌러서 잠금 해제</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>식 변형하기</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>앱이 마음에 드시나요?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>보내기</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>감사합니다!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>약분하기</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>거듭제곱근 구하기</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>거듭제곱 계산하기</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>역수</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>입력</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>거듭제곱과 거듭제곱근</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>그림을 만드는 중</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>풀이 전체가 긴 그림 한 장이 됩니다. 파일로 보내면 가장 선명합니다.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>기록 지우기</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>기록을 모두 지우시겠습니까?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>%0 삭제</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>계산을 삭제했습니다</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>기록을 지웠습니다</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>%1개 중 %0번째로 옮겼습니다</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>아직 아무것도 없습니다. 계산한 내용은 모두 여기에 남아 언제든 다시 볼 수 있습니다.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>계산해 보기</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>식이 없는 계산</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>기록 검색</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>검색 지우기</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>%1개 찾음</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>기록에 맞는 계산이 없습니다.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>이전</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>입력한 대로 복사</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>기록 내보내기</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>기록 가져오기</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>계산 %1개를 가져왔습니다</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>이 계산은 모두 이미 기록에 있습니다.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>이 파일을 읽을 수 없습니다. 바뀐 것은 없습니다.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>이 파일은 기록이라기에는 너무 큽니다. 바뀐 것은 없습니다.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>이 파일은 이 앱의 기록이 아니거나 손상되었습니다. 바뀐 것은 없습니다.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>%1 폴더에 기록 파일이 없습니다. 그곳에 파일을 넣고 다시 해 보세요.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>지금은 저장할 수 없습니다. 기록은 앱을 닫을 때까지 남아 있습니다.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>인터넷에 연결되어 있지 않습니다</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>동의</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>거부</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>동영상과 개인정보</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>동영상은 외부 서비스인 YouTube에서 가져옵니다. 동의하면 동영상이 화면에 나타나는 즉시 YouTube 서버에서 불러옵니다. 이때 YouTube는 인터넷 주소를 알게 되고, 기기에 데이터를 저장할 수 있으며, 로그인한 경우 누구인지 알아볼 수 있습니다.

그전에는 아무것도 불러오지 않습니다. 동영상 위의 자물쇠로 언제든지 동의를 철회할 수 있고, 나머지 기능은 동영상 없이도 모두 쓸 수 있습니다.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>계산한 내용은 이 기기에만 남습니다. 문제, 설정, 이 답변은 여기에만 저장됩니다.

주소가 설정되어 있으면 앱은 동영상과 앱 목록을 인터넷에서 가져오며, 사용자에 관한 정보는 보내지 않습니다. 링크는 브라우저에서 열리고, 동영상은 허용한 뒤에만 YouTube에서 불러옵니다.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>§appname에 오신 것을 환영합니다! 거듭제곱과 거듭제곱근의 계산을 한 단계씩 배울 수 있습니다.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>위에서 거듭제곱과 거듭제곱근 중 하나를 고르세요.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>칸을 눌러 수를 입력하세요. 분수, 소수, π와 x, y, z도 쓸 수 있습니다.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>체크 표시를 누르면 모든 단계가 보입니다. 색은 무엇을 하는지 보여 주고, 긴 줄은 옆으로 밀 수 있습니다.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>문제는 메뉴의 기록에 남습니다. 공유 버튼을 누르면 풀이가 그림이 됩니다.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>어떤 단계는 동영상으로 더 쉽게 이해할 수 있습니다.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>풀이 아래의 동영상은 같은 주제를 설명합니다. 옆으로 밀면 더 볼 수 있습니다.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>동영상은 YouTube에서 가져옵니다. YouTube는 인터넷 주소를 알게 되고 기기에 데이터를 저장할 수 있습니다.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>잠겨 있는 동안에는 그곳에서 아무것도 불러오지 않습니다.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>언제든지 마음을 바꿀 수 있습니다. 동영상 위의 자물쇠를 누르세요.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>소개</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>앱 평가하기</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>커뮤니티 채팅</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>방문하기:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>올인원:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>다른 앱:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>이 수들은 서로 모순됩니다. 입력을 확인하세요.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>값은 %0보다 크고 %1보다 작아야 합니다.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>값은 %0보다 커야 합니다.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>값은 %0보다 작아야 합니다.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>값이 빠졌습니다. 표시된 칸을 채우세요.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>수로 읽을 수 없습니다. 표시된 칸을 확인하세요.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>분수가 완전하지 않습니다. 분자와 분모가 필요합니다.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>0으로 나눌 수 없습니다. 분모를 바꾸세요.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>π는 수의 각 부분에 한 번만 쓰세요.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>π나 문자는 2π, 3x처럼 수 뒤에 쓰세요.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>문자는 수의 각 부분에 하나만 쓰세요.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>단계가 너무 많아 읽을 수 없습니다. 여기에는 더 작은 수를 넣어 보세요.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>수가 너무 크거나 자릿수가 너무 많습니다. 더 작거나 짧은 수를 쓰세요.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>칸을 눌러 시작하세요</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>밑과 지수가 아직 없습니다</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>밑이 아직 없습니다</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>지수가 아직 없습니다</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>근호 안의 수가 아직 없습니다</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>분수가 아직 완성되지 않았습니다</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>숫자가 빠졌습니다</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>아직 수가 아닙니다</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>소수점은 하나만 쓸 수 있습니다</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>분수의 가로선은 하나만 쓸 수 있습니다</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>분모는 0이 될 수 없습니다</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π는 한 수에 한 번만 씁니다</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>수 뒤에 π나 문자 하나를 씁니다</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>문자는 한 수에 하나만 씁니다</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>너무 길어서 다 쓸 수 없습니다</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>너무 크거나 자릿수가 너무 많습니다</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>결과가 너무 커서 ∞로 표시됩니다</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>0으로 나누게 되어 ∞로 표시됩니다</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>숫자와 π x y z . / −만 쓸 수 있습니다</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>복사한 내용을 수로 읽을 수 없습니다</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>음의 부호는 맨 앞에만 씁니다</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>이 칸에는 수 하나만 씁니다</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>잘라내기</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>문제 유형</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>잘못된 입력</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>밑</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>지수</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>근호 안의 수</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>근지수</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>거듭제곱</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>거듭제곱근</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>지우기</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>계산하기</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>소수점</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>분수의 가로선</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>음의 부호</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>원주율 π</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>풀이 공유하기</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>그림</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>LaTeX로 복사</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>MathML로 복사</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>말로 복사</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>그림으로 복사</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>여기부터 소리 내어 읽기</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>소리 내어 읽기 중지</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>다른 이름으로 저장…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>풀이</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>%1에 저장했습니다</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>보기</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>복사했습니다</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>파일을 저장할 공간이 부족합니다. 공간을 만들거나 다른 곳을 고르세요. 저장된 것은 없습니다.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>이 폴더에는 저장할 수 없습니다. 다른 폴더를 고르세요.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>그림을 보여 줄 프로그램을 찾지 못했습니다. 대신 그림을 저장하세요.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>사용 방법</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>다시 재생</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>시작하기</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>%2쪽 중 %1쪽</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>동영상 안내</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>동영상 개인정보: 잠김</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>동영상 개인정보: 허용됨</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>동영상 없음</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>동영상, 아직 준비되지 않음</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>동영상</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>브라우저에서 보기</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>별 %2개 중 %1개</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>§ 할인 받기</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>이 링크는 여기에서 열 수 없습니다.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>거듭제곱과 거듭제곱근 중 하나를 고르세요.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>밑입니다. 거듭제곱근에서는 근호 안의 수입니다. 칸을 누르면 쓸 수 있습니다.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>지수입니다. 거듭제곱근에서는 근지수이고, 비워 두면 2입니다.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>소수점, 빗금, 문자: 0.5, 3/2, π, x처럼 쓰세요. 음의 부호는 칸의 부호를 바꿉니다.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>가위표가 있는 키로 지우고, 체크 표시로 계산을 시작합니다.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>풀이는 입력한 문제로 시작합니다. 너무 긴 줄은 옆으로 밀 수 있습니다.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>빨강: 다음 단계에서 다루는 부분. 파랑과 보라: 지수의 분자와 분모.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>초록: 방금 계산한 부분.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>결과입니다. 왼쪽에 세로 막대가 있습니다.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>잠시 기다려 주세요</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>화면 모드</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>밝게</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>어둡게</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>수식</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>수식 작게</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>수식 크게</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>풀이가 여기에 표시됩니다.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>한국어</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>바꾼 언어는 다음에 시작할 때부터 쓰입니다.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>사용 통계</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>사용한 기능 보내기</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>보내는 내용</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>이 버전은 사용에 관해 아무것도 기록하거나 보내지 않습니다.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>설정에서 허용한 경우에만 앱은 어떤 기능이 쓰였는지 기록하여 %1에 보냅니다. 설정에서 언제든지 철회할 수 있으며, 그러면 기록은 곧바로 지워집니다.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>그러면 계산한 내용이 이 기기에만 남지 않습니다. 입력한 내용과 풀이도 함께 보냅니다.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>각 이벤트와 함께 그 시각, 날마다 바뀌는 임의의 수, 앱의 이름과 버전이 갑니다. 사용자나 기기를 알 수 있는 것은 가지 않습니다. 이벤트와 각각 함께 가는 것은 다음과 같습니다:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>정확한 값</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>정확한 값</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>자릿수 늘리기</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>자릿수 줄이기</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>텍스트로 복사</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>정확히 참이 아님</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>%1자리 정수입니다. %2(으)로 시작하여 %3(으)로 끝납니다.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>절댓값 %1 절댓값 끝</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>대괄호 열고 %1 대괄호 닫고</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>중괄호 열고 %1 중괄호 닫고</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>괄호 열고 %1 괄호 닫고</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%2 분의 %1</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>분수 분모 %2 분자 %1 분수 끝</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>순환마디 %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>루트 %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>루트 %1 루트 끝</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>%1 의 세제곱근</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>세제곱근 %1 근호 끝</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>%2 의 %1 제곱근</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>%1 제곱근 %2 근호 끝</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 아래첨자 %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 의 %2 제곱</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 의 %2 제곱 지수 끝</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>더하기</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>마이너스</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>플러스 마이너스</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>나누기</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>는</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>같지 않다</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>약</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>작다</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>크다</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>작거나 같다</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>크거나 같다</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>무한대</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>도</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>퍼센트</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>팩토리얼</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>파이</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>사인</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>코사인</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>탄젠트</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>로그</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>자연로그</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>곱하기</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1, %2부터 %3까지</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: 점 없음</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: 점 하나, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: 점 %2개, %3부터 %4까지, 최솟값 %5, 최댓값 %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%2에서 %1</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>%1번 시행의 수형도, 성공 확률 %2, 실패 확률 %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>단위원, 각 %1, 회전수 %2와 %3, 코사인 %4, 사인 %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>단위원</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>제%1사분면</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>꺾은선그래프</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>곡선</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>산점도</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>영역 그래프</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>0의 0제곱은 값이 없습니다.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>0으로 나눌 수 없으며, 0의 음수 제곱은 0으로 나누는 것이 됩니다.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>근지수가 0인 거듭제곱근은 없습니다.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>음수의 짝수 제곱근은 실수가 아닙니다.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>음수의 무리수 제곱은 실수가 아닙니다.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>음수의 거듭제곱이 실수인지는 지수에 따라 다릅니다.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>자릿수가 너무 많아 모두 쓸 수 없습니다.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>근호는 음수가 아닌 수를 뜻합니다. 방정식 %1의 해는 %2와 %3 두 개입니다.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>방정식 %1의 해는 0뿐입니다.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>이 풀이는 0의 0제곱을 1로 봅니다.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>이 풀이는 10¹²보다 큰 수를 무한대로 봅니다.</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>이 풀이는 10⁻¹⁰보다 작은 수를 0으로 씁니다.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π는 인수로 그대로 두고 거듭제곱하지 않습니다.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>변수는 인수로 그대로 두고 거듭제곱하지 않습니다.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>지수나 근지수에 있는 π나 변수는 생략됩니다.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>이 풀이는 밑에 필요한 괄호 없이 거듭제곱을 씁니다.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>거듭제곱근은 음수가 아니며, 두 번째 결과는 방정식의 다른 해입니다.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>이 풀이는 분수로 바꾸는 소수의 유효숫자를 여섯 자리만 남깁니다.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>지수가 정수가 아닌 거듭제곱을 정수인 것처럼 풀어 씁니다.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>이 풀이는 분모를 유효숫자 여섯 자리로 씁니다.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>한 단계가 계산할 수 있는 범위를 넘어, 그 뒤로는 무한대로 계산합니다.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>이 풀이는 쓰는 값을 반올림하고 모든 자릿수로 계산을 이어 갑니다.</translation>
    </message>
</context>
</TS>
