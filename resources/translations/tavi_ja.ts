<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>問題の数を入力してください：</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>入力した式</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>分母と分子に同じ数をかける</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>変形した式</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>ステップ</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>答え</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>実数の範囲に解はありません</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>わかりにくいときは動画で</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>タップしてロックを解除</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>式を変形する</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>このアプリはいかがですか？</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>ありがとうございます！</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>約分する</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>累乗根を求める</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>累乗を計算する</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>逆数</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>入力</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>累乗と累乗根</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>画像を作成しています</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>解き方全体が1枚の長い画像になります。ファイルとして送ると、いちばんきれいに見えます。</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>履歴を消去</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>すべての履歴を消去しますか？</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>%0を削除</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>計算を削除しました</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>履歴を消去しました</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>%1件中%0番目に移動しました</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>まだ何もありません。計算したものはここに残り、いつでも見直せます。</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>計算してみる</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>式のない計算</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>履歴を検索</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>%1件見つかりました</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>履歴に当てはまる計算はありません。</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>以前</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>入力どおりにコピー</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>履歴を書き出す</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>履歴を読み込む</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>%1件の計算を読み込みました</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>これらの計算はすべて履歴にあります。</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>このファイルを読めません。何も変更されていません。</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>このファイルは履歴としては大きすぎます。何も変更されていません。</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>このファイルはこのアプリの履歴ではないか、壊れています。何も変更されていません。</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>フォルダー %1 に履歴のファイルがありません。そこに置いて、もう一度お試しください。</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>今は保存できません。履歴はアプリを閉じるまで残ります。</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>インターネットに接続されていません</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>同意する</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>同意しない</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>動画とプライバシー</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>動画は外部サービスのYouTubeのものです。同意すると、動画が画面に現れたときにYouTubeのサーバーから読み込まれます。その際、YouTubeはあなたのインターネットアドレスを知り、端末にデータを保存することがあります。YouTubeにログインしていれば、あなたを識別することもできます。

それまでは何も読み込まれません。同意は動画の上の鍵でいつでも取り消せます。動画がなくても、ほかの機能はすべて使えます。</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>計算した内容はこの端末に残ります。問題、設定、この回答は、ここにだけ保存されます。

取得先のアドレスが設定されている場合、アプリは動画とアプリの一覧をインターネットから取得します。あなたに関する情報は送信されません。リンクはブラウザーで開き、動画は許可したあとにだけYouTubeから読み込まれます。</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>§appnameへようこそ！累乗と累乗根の計算を、一歩ずつ学べます。</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>画面の上で、累乗か累乗根を選びます。</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>欄をタップして数を入力します。分数、小数、π、x、y、zも使えます。</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>チェックマークをタップすると、すべてのステップが見られます。色は何をしているかを示します。長い行は横にスクロールします。</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>問題は履歴に残ります。履歴はメニューにあります。共有ボタンを押すと、解き方が画像になります。</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>動画のほうがわかりやすいステップもあります。</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>解き方の下の動画は同じテーマを説明しています。横にスクロールすると、ほかの動画も見られます。</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>動画はYouTubeのものです。YouTubeはあなたのインターネットアドレスを知り、端末にデータを保存することがあります。</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>鍵がかかっている間は、そこから何も読み込まれません。</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>いつでも変更できます。動画の上の鍵をタップしてください。</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>使い方の紹介</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>このアプリを評価</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>コミュニティチャット</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>公式ページ：</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>オールインワン：</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>ほかのアプリ：</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>これらの数は矛盾しています。入力を確認してください。</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>値は%0より大きく、%1より小さくなければなりません。</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>値は%0より大きくなければなりません。</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>値は%0より小さくなければなりません。</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>値が足りません。印のついた欄に入力してください。</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>数として読み取れません。印のついた欄を確認してください。</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>分数が完成していません。分子と分母が必要です。</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>0で割ることはできません。分母を変えてください。</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>πは数の各部分に1回だけ書けます。</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>πや文字は、2πや3xのように数の後ろに書いてください。</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>文字は数の各部分に1つだけ書けます。</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>ステップが多すぎて読みきれません。ここではもっと小さい数にしてください。</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>数が大きすぎるか、桁が多すぎます。もっと小さい数か短い数にしてください。</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>欄をタップして開始</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>底と指数がまだありません</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>底がまだありません</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>指数がまだありません</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>根号の中の数がまだありません</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>分数がまだ完成していません</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>数字が足りません</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>まだ数になっていません</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>小数点は1つだけです</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>分数の線は1本だけです</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>分母は0にできません</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>πは1つの数に1回だけです</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>数の後ろにπか文字を1つ書きます</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>文字は1つの数に1つだけです</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>長すぎて書き出せません</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>大きすぎるか、桁が多すぎます</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>答えが大きすぎるため、∞と表示されます</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>0で割ることになり、∞と表示されます</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>使えるのは数字と π x y z . / − だけです</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>コピーした内容を数として読めません</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>マイナスは先頭にだけ書けます</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>この欄に入る数は1つだけです</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>計算の種類</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>無効な入力</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>底</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>指数</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>根号の中の数</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>根指数</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>累乗</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>累乗根</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>計算する</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>小数点</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>分数の線</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>マイナス記号</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>円周率π</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>解き方を共有</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>LaTeXとしてコピー</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>MathMLとしてコピー</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>言葉でコピー</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>画像としてコピー</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>ここから読み上げる</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>読み上げを止める</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>解き方</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>%1に保存しました</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>ファイルを保存する空きがありません。空きを作るか別の場所を選んでください。何も保存されていません。</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>このフォルダーには保存できません。別のフォルダーを選んでください。</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>画像を表示するプログラムが見つかりません。代わりに画像を保存してください。</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>使い方</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>もう一度再生</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>始める</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>%2ページ中%1ページ</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>動画について</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>動画のプライバシー：ロック中</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>動画のプライバシー：許可済み</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>動画なし</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>動画、準備中</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>ブラウザーで見る</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>星%2個中%1個</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>§割引を利用する</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>このリンクはここでは開けません。</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>累乗か累乗根かを選びます。</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>底。累乗根では根号の中の数です。欄をタップすると入力できます。</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>指数。累乗根では根指数です。空のままなら2になります。</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>小数点、斜線、文字：0.5、3/2、π、xのように入力します。マイナスは欄の符号を変えます。</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>バツ印のキーで削除、チェックマークで計算を始めます。</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>解き方は入力した問題から始まります。長い行は横にスクロールします。</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>赤：次のステップで使うところ。青と紫：指数の分子と分母。</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>緑：今計算したところ。</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>答え。左の縦線が目印です。</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>お待ちください</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>数式</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>大きさ</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>数式を小さく</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>数式を大きく</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>解き方がここに表示されます。</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>日本語</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>選んだ言語は次の起動から使われます。</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>利用状況</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>使った機能を送信する</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>送信される内容</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>このバージョンは利用状況を記録も送信もしません。</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>設定で許可した場合にだけ、アプリはどの機能が使われたかを記録し、%1に送信します。許可は設定でいつでも取り消せます。取り消すと、記録はすぐに消去されます。</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>その場合、計算した内容はこの端末だけには残りません。入力した内容と解き方も送信されます。</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>各イベントとともに、その時刻、毎日変わるランダムな数、アプリの名前とバージョンが送られます。あなたや端末を特定するものは送られません。イベントと、それぞれとともに送られるものは次のとおりです：</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>厳密値</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>厳密な値</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>桁を増やす</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>桁を減らす</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>テキストとしてコピー</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>厳密には正しくない</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>%1桁の整数。%2で始まり%3で終わります。</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>絶対値 %1 絶対値終わり</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>角かっこ %1 角かっこ閉じ</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>波かっこ %1 波かっこ閉じ</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>かっこ %1 かっこ閉じ</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%2 分の %1</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>分数 分母 %2 分子 %1 分数終わり</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>循環節%1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>ルート %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>ルート %1 ルート終わり</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>%1 の3乗根</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>3乗根 %1 根号終わり</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>%2 の %1 乗根</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>%1 乗根 %2 根号終わり</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 添字 %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 の %2 乗</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 の %2 乗 指数終わり</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>プラス</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>マイナス</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>プラスマイナス</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>わる</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>イコール</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>ノットイコール</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>およそ</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>小なり</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>大なり</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>小なりイコール</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>大なりイコール</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>無限大</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>度</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>パーセント</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>の階乗</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>パイ</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>サイン</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>コサイン</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>タンジェント</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>ログ</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>自然対数</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>かける</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1、%2から%3まで</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1：点なし</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1：点1個、%2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1：点%2個、%3から%4まで、最小%5、最大%6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%2で%1</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>%1回の試行の樹形図、成功の確率%2、失敗の確率%3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>単位円、角%1、回転数%2と%3、コサイン%4、サイン%5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>単位円</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>第%1象限</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>折れ線グラフ</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>曲線</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>散布図</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>面グラフ</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>0の0乗には値がありません。</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>0で割ることはできません。0の負の累乗は0で割ることになります。</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>根指数が0の累乗根はありません。</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>負の数の偶数乗根は実数ではありません。</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>負の数の無理数乗は実数ではありません。</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>負の数の累乗が実数かどうかは指数によります。</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>桁数が多すぎて書き表せません。</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>根号は負でない方の数を表します。方程式%1には2つの解%2と%3があります。</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>方程式%1の解は0だけです。</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>この解き方では0の0乗を1とします。</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>この解き方では10¹²より大きい数を無限大とみなします。</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>この解き方では10⁻¹⁰より小さい数を0と書きます。</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>πは因数としてそのまま残り、累乗されません。</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>変数は因数としてそのまま残り、累乗されません。</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>指数や根指数にあるπや変数は省かれます。</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>この解き方では底に必要なかっこを付けずに累乗を書きます。</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>累乗根は負になりません。2つ目の結果は方程式のもう1つの解です。</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>この解き方では分数に直す小数の有効数字を6桁だけ残します。</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>指数が整数でない累乗を、整数であるかのように書き並べます。</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>この解き方では分母を有効数字6桁で書きます。</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>計算できる範囲を超えた途中式があり、その先は無限大で計算します。</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>この解き方では書く値を四捨五入し、計算は全桁で続けます。</translation>
    </message>
</context>
</TS>
