<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>填入题中的数：</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>你的输入</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>扩分</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>变形后的输入</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>步骤</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>在实数范围内无解</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>还不明白？看个视频吧</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>点按解锁</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>变形</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>你喜欢这个应用吗？</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>谢谢！</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>约分</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>开方</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>计算乘方</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>倒数</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>乘方与开方</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>正在生成图片</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>整个解题过程会变成一张长图。以文件形式发送，画质最好。</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>清空历史记录</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>确定要删除全部历史记录吗？</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>删除 %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>已删除题目</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>已清空历史记录</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>已移到第 %0 位，共 %1 位</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>这里还是空的。你算过的题都会保存在这里，方便以后再看。</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>算一道题</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>没有算式的题目</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>搜索历史记录</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>找到 %1 条</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>历史记录中没有符合的题目。</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>更早</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>按输入复制</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>导出历史记录</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>导入历史记录</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>已导入 %1 道题目</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>这些题目都已在历史记录中。</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>无法读取这个文件。没有任何更改。</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>这个文件太大，不像是历史记录。没有任何更改。</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>这个文件不是本应用的历史记录，或已损坏。没有任何更改。</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>文件夹 %1 中没有历史记录文件。请放入文件后再试。</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>现在无法保存。关闭应用之前，历史记录都在。</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>没有网络连接</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>同意</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>拒绝</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>视频与隐私</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>视频来自第三方服务 YouTube。如果你同意，视频一出现在屏幕上，就会从 YouTube 的服务器加载。这时 YouTube 会得知你的网络地址，可能在你的设备上存储数据；如果你在那里登录了，它还能认出你。

在此之前不会加载任何内容。你可以随时用视频上方的锁撤回同意，其他功能没有视频也能使用。</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>你的计算只留在这台设备上。你的题目、设置和这次的选择都只保存在这里。

如果设置了相应的地址，应用会从网上获取视频和应用的列表，不会发送任何关于你的信息。链接会在你的浏览器中打开，视频在你允许后才会从 YouTube 加载。</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>欢迎使用§appname！在这里，你可以一步一步学会乘方和开方的计算。</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>在上方选择乘方或开方。</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>点按输入框，输入你的数。分数、小数、π 和 x、y、z 都可以。</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>点按对勾，就能看到每一步。颜色表示正在做什么；较长的算式可以左右滑动。</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>你的题目会留在菜单里的历史记录中。分享按钮可以把解题过程变成图片。</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>有些步骤看视频更容易理解。</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>解题过程下方的视频讲解同一个主题。左右滑动可以看到更多。</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>视频来自 YouTube。它会得知你的网络地址，并可能在你的设备上存储数据。</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>上锁时，不会从那里加载任何内容。</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>你随时可以改变主意：点按视频上方的锁。</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>使用介绍</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>隐私政策</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>给应用评分</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>社区聊天</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>访问我们：</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>全能应用：</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>其他应用：</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>这些数互相矛盾，请检查输入。</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>数值必须大于 %0 且小于 %1。</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>数值必须大于 %0。</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>数值必须小于 %0。</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>缺少一个数，请填写标出的输入框。</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>无法识别这个数，请检查标出的输入框。</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>分数不完整，需要有分子和分母。</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>不能除以零，请修改分母。</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>数的每一部分只能写一个 π。</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>请把 π 或字母写在数的后面，如 2π 或 3x。</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>数的每一部分只能写一个变量。</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>步骤会多得看不完，请在这里换一个小一点的数。</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>这些数太大或位数太多，请换小一点或短一点的数。</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>点按输入框开始</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>还缺底数和指数</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>还缺底数</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>还缺指数</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>还缺被开方数</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>分数还没写完</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>还缺一个数字</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>这还不是一个数</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>只能有一个小数点</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>只能有一条分数线</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>分母不能为零</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>一个数里只能有一个 π</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>数的后面写 π 或一个字母</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>一个数里只能有一个字母</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>太长了，写不下</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>数太大或位数太多</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>结果太大，将显示为 ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>这里除以了零，将显示为 ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>这里只能输入数字和 π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>复制的内容不是一个明确的数</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>负号只能写在最前面</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>这个输入框只能填一个数</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>题目类型</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>输入无效</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>底数</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>指数</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>被开方数</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>根指数</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>乘方</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>开方</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>计算</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>小数点</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>分数线</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>负号</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>π（圆周率）</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>分享解题过程</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>复制为 LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>复制为 MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>复制为文字</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>复制为图片</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>从这里开始朗读</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>停止朗读</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>另存为…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>解题过程</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>查看</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>空间不足，无法保存文件。请清理空间或换一个位置；没有保存任何内容。</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>无法保存到这个文件夹，请换一个。</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>没有找到能显示图片的程序，请保存图片。</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>使用方法</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>再播放一次</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>开始吧</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>关于视频</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>视频隐私：已锁定</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>视频隐私：已允许</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>没有视频</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>视频，尚未就绪</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>在浏览器中观看</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%2 颗星中的 %1 颗</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>领取 § 优惠</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>无法在这里打开这个链接。</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>选择乘方或开方。</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>底数；开方时是根号下的数。点按输入框即可输入。</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>指数；开方时是根指数，留空表示 2。</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>小数点、分数线和字母：如 0.5、3/2、π 或 x。负号键改变数的正负。</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>带叉的键删除，对勾开始计算。</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>解题过程从你的题目开始。太长的算式可以左右滑动。</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>红色：下一步要处理的部分。蓝色和紫色：指数的分子和分母。</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>绿色：刚刚算出的部分。</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>结果，左边有竖条标记。</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>算式</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>缩小算式</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>放大算式</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>解题过程会显示在这里。</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>简体中文</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>新语言将在下次启动时生效。</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>使用数据</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>发送使用了哪些功能</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>发送的内容</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>这个版本不记录也不发送任何使用情况。</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>只有在设置中得到你的允许后，应用才会记录使用了哪些功能，并发送到 %1。你可以随时在那里撤回；已记录的内容会立即删除。</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>这样一来，你的计算就不只留在这台设备上：你输入的内容和解题过程也会一起发送。</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>每个事件会附带发生的时间、一个每天更换的随机数，以及应用的名称和版本；不含任何能识别你或你的设备的内容。以下是这些事件以及各自附带的内容：</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>精确值</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>精确值</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>增加位数</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>减少位数</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>复制为文本</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>并不完全成立</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>一个 %1 位的整数，以 %2 开头，以 %3 结尾。</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>绝对值 %1 绝对值结束</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>左方括号 %1 右方括号</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>左花括号 %1 右花括号</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>左括号 %1 右括号</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%2 分之 %1</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>分数 分子 %1 分母 %2 分数结束</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>循环节 %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>根号 %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>根号 %1 根号结束</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>%1 的立方根</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>三次根号 %1 根号结束</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>%1 次根号 %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>%1 次根号 %2 根号结束</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 下标 %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 的 %2 次方</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 的 %2 次方 指数结束</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>加</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>负</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>正负</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>除以</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>等于</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>不等于</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>约等于</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>小于</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>大于</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>小于或等于</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>大于或等于</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>无穷大</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>度</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>百分号</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>的阶乘</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>派</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>正弦</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>余弦</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>正切</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>对数</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>自然对数</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>乘</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 从 %2 到 %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1：没有点</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1：一个点，%2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1：%2 个点，从 %3 到 %4，最低 %5，最高 %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%2 处为 %1</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>%1 次试验的树状图，成功概率 %2，失败概率 %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>单位圆，角 %1，整圈数 %2 和 %3，余弦 %4，正弦 %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>单位圆</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>第 %1 象限</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>折线图</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>曲线</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>散点图</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>面积图</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>零的零次幂没有值。</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>不能除以零，而零的负数次幂就相当于除以零。</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>不存在零次方根。</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>负数的偶次方根不是实数。</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>负数没有指数为无理数的实数幂。</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>负数的幂是否为实数取决于指数。</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>这个数的位数太多，无法写出。</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>根号表示非负的那个数。方程 %1 有两个解：%2 和 %3。</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>方程 %1 只有零这一个解。</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>解题过程把零的零次幂当作 1。</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>解题过程把大于 10¹² 的数视为无穷大。</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>解题过程把小于 10⁻¹⁰ 的数写作 0。</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π 作为因数保留，不参与乘方。</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>变量作为因数保留，不参与乘方。</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>指数或根指数中的 π 或变量被略去。</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>解题过程写幂时省略了底数所需的括号。</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>方根不为负；第二个结果是方程的另一个解。</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>解题过程把小数化成分数时只保留六位有效数字。</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>指数不是整数的幂被当作整数次幂展开。</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>解题过程把分母写成六位有效数字。</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>有一步超出了解题过程的计算范围，之后以无穷大继续。</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>解题过程对写出的数取近似，而计算时使用全部数位。</translation>
    </message>
</context>
</TS>
