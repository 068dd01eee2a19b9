<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Preencha os números dados:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Sua entrada</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Obter fração equivalente</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Entrada transformada</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Passo</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>Sem solução nos números reais</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Ainda em dúvida? Veja um vídeo</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Toque para desbloquear</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Transformar</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>Você gosta do aplicativo?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Obrigado!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Simplificar a fração</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Extrair a raiz</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Calcular a potência</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Inverso</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Potências e raízes</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Preparando sua imagem</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>A solução inteira vira uma imagem longa. Para a melhor qualidade, envie-a como arquivo.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Limpar o histórico</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Quer mesmo apagar todo o seu histórico?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Excluir %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Cálculo excluído</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>Histórico apagado</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Movido para a posição %0 de %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Nada aqui ainda. Tudo o que você calcular fica guardado aqui, para você poder voltar.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Calcular algo</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Cálculo sem fórmula</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Pesquisar no histórico</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Limpar a pesquisa</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>Nenhum cálculo do histórico corresponde.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Antes</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Copiar como digitado</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Exportar o histórico</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Importar um histórico</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Cálculos importados: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Todos esses cálculos já estão no histórico.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Não é possível ler este arquivo. Nada foi alterado.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Este arquivo é grande demais para um histórico. Nada foi alterado.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>Este arquivo não contém um histórico deste app ou está danificado. Nada foi alterado.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>Não há arquivo de histórico na pasta %1. Coloque um lá e tente de novo.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Agora não é possível salvar nada. Seu histórico dura até você fechar o aplicativo.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Sem conexão com a internet</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Aceitar</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Recusar</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Privacidade dos vídeos</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Os vídeos vêm do YouTube, um serviço de terceiros. Se você aceitar, eles são carregados dos servidores do YouTube assim que aparecem. O YouTube fica então sabendo seu endereço na internet, pode guardar dados no seu aparelho e reconhecer você, se tiver entrado na sua conta lá.

Antes disso nada é carregado. Você pode voltar atrás a qualquer momento com o cadeado sobre os vídeos; todo o resto funciona sem eles.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>O que você calcula fica neste aparelho. Suas tarefas, suas configurações e esta resposta são guardadas somente aqui.

Se houver um endereço definido para isso, o aplicativo busca sua lista de vídeos e aplicativos na internet; nada sobre você é enviado. Os links se abrem no seu navegador, e os vídeos só vêm do YouTube depois que você permitir.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Boas-vindas ao §appname! Aqui você aprende passo a passo como se calculam potências e raízes.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>Em cima, escolha entre potência e raiz.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Toque em um campo e digite seus números. Frações, decimais, π e x, y, z também são bem-vindos.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Toque no sinal de visto e você verá cada passo. As cores mostram o que acontece; uma linha longa desliza para o lado.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Suas tarefas ficam no histórico, que está no menu. O botão de compartilhar faz uma imagem da solução.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Alguns passos são mais fáceis de entender com um vídeo.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Os vídeos sob uma solução explicam o mesmo assunto. Deslize a fileira para o lado para ver mais.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Eles vêm do YouTube, que fica então sabendo seu endereço na internet e pode guardar dados no seu aparelho.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Enquanto a fileira está bloqueada, nada é carregado de lá.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Você pode mudar de ideia a qualquer momento: toque no cadeado sobre os vídeos.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Introdução</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Política de privacidade</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Avaliar este aplicativo</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Chat da comunidade</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Visite-nos:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Tudo em um:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Outros aplicativos:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Estes números se contradizem. Confira sua entrada.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>O valor deve ser maior que %0 e menor que %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>O valor deve ser maior que %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>O valor deve ser menor que %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Falta um valor. Preencha o campo marcado.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>Não consigo ler isto como número. Confira o campo marcado.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>A fração está incompleta. Ela precisa de numerador e denominador.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>Não se pode dividir por zero. Mude o denominador.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Use π só uma vez em cada parte de um número.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Escreva π ou uma letra depois do número, como em 2π ou 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Use só uma variável em cada parte de um número.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Seriam mais passos do que se consegue ler. Tente aqui um número menor.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Estes números são grandes ou exatos demais para mim. Use números menores ou mais curtos.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Toque em um campo para começar</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Faltam a base e o expoente</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Falta a base</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Falta o expoente</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Falta o radicando</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>A fração não está completa</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Falta um algarismo</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Isto ainda não é um número</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Só pode haver um ponto decimal</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Só pode haver uma barra de fração</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>O denominador não pode ser zero</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π só cabe uma vez em um número</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>Depois do número vem π ou uma letra</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Só cabe uma letra em um número</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>É longo demais para escrever</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>É grande demais ou exato demais</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>O resultado é muito grande: aparecerá como ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Aqui se divide por zero: aparecerá como ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Aqui só cabem algarismos e π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>O que foi copiado não é um número claro</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>O sinal de menos só pode ficar na frente</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>Neste campo só cabe um número</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Tipo de tarefa</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Entrada inválida</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Expoente</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Radicando</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Índice</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Raiz</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Calcular</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Ponto decimal</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Barra de fração</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Sinal de menos</translation>
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
        <translation>Compartilhar a solução</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Copiar como LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Copiar como MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>Copiar em palavras</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Copiar como imagem</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Ouvir a partir daqui</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Parar a leitura</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Salvar como…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Solução</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Salvo como %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>Não há espaço suficiente para o arquivo. Libere espaço ou escolha outro lugar; nada foi salvo.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>Não é possível salvar nesta pasta. Escolha outra.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>Não foi encontrado nenhum programa que mostre imagens. Salve a imagem.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>Como funciona</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Repetir</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>Vamos lá!</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>Sobre os vídeos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Privacidade dos vídeos: bloqueado</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Privacidade dos vídeos: permitido</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Sem vídeo</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Vídeo, ainda não está pronto</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Ver no navegador</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 de %2 estrelas</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Ganhe § de desconto</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Este link não pode ser aberto aqui.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Escolha se você quer uma potência ou uma raiz.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>A base; em uma raiz, o número sob o radical. Toque em um campo para escrever nele.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>O expoente; em uma raiz, o índice. Um índice vazio vale 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Ponto, barra e letras: digite 0.5, 3/2, π ou x. O menos troca o sinal do campo.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>A tecla com o xis apaga; o sinal de visto inicia o cálculo.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>A solução começa com sua tarefa. Linhas longas demais deslizam para o lado.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Vermelho: aquilo com que o próximo passo trabalha. Azul e violeta: numerador e denominador de um expoente.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Verde: o que acabou de ser calculado.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>O resultado, marcado pela barra à esquerda.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Aguarde um momento</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Fórmulas</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Fórmulas menores</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Fórmulas maiores</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>A solução aparecerá aqui.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Português</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>O novo idioma vale a partir do próximo início.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Dados de uso</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Enviar as funções usadas</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>O que é enviado</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Esta versão não guarda nem envia nada sobre seu uso.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Somente se você permitir nas configurações, o aplicativo guarda quais de suas funções são usadas e envia isso para %1. Você pode voltar atrás lá a qualquer momento; o que foi guardado é então apagado na hora.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Nesse caso, o que você calcula não fica só neste aparelho: o que você digitou e a solução também são enviados.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>Com cada evento vão sua hora, um número aleatório que muda todo dia, e o nome e a versão do aplicativo; nada que identifique você ou seu aparelho. Estes são os eventos e o que vai com cada um:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Exato</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Valor exato</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Mais algarismos</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Menos algarismos</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>não é exatamente verdade</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Um número inteiro de %1 algarismos. Começa por %2 e termina em %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>módulo de %1 fim do módulo</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>abre colchete %1 fecha colchete</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>abre chave %1 fecha chave</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>abre parêntese %1 fecha parêntese</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 sobre %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>fração %1 sobre %2 fim da fração</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>período %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>raiz quadrada de %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>raiz quadrada de %1 fim da raiz</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>raiz cúbica de %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>raiz cúbica de %1 fim da raiz</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>raiz de índice %1 de %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>raiz de índice %1 de %2 fim da raiz</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 índice %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 elevado a %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 elevado a %2 fim do expoente</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>mais</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>menos</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>mais ou menos</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>dividido por</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>é igual a</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>é diferente de</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>é aproximadamente</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>é menor que</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>é maior que</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>é menor ou igual a</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>é maior ou igual a</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>infinito</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>graus</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>por cento</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>fatorial</translation>
    </message>
    <message id="mathPi">
        <source>pi</source>
        <translation>pi</translation>
    </message>
    <message id="mathSine">
        <source>sine</source>
        <translation>seno</translation>
    </message>
    <message id="mathCosine">
        <source>cosine</source>
        <translation>cosseno</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>tangente</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>logaritmo</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>logaritmo natural</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>vezes</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 de %2 a %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: nenhum ponto</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: um ponto, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: %2 pontos, de %3 a %4, mínimo %5, máximo %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>árvore de probabilidades de %1 tentativas, probabilidade de sucesso %2, de fracasso %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>círculo trigonométrico, ângulo %1, voltas completas %2 e %3, cosseno %4, seno %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>círculo trigonométrico</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>quadrante %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>gráfico de linhas</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>curva</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>gráfico de pontos</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>gráfico de área</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Zero elevado a zero não tem valor.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>Não se pode dividir por zero, e uma potência negativa de zero faria isso.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>Não existe raiz de índice zero.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Uma raiz de índice par de um número negativo não é um número real.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>Um número negativo não tem potência real de expoente irracional.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>Se uma potência de um número negativo é real depende do expoente.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>O número tem mais algarismos do que se pode escrever.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>O sinal de raiz indica o número que não é negativo. A equação %1 tem duas soluções: %2 e %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>A equação %1 tem zero como única solução.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>A resolução toma zero elevado a zero como 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>A resolução considera infinitos os números acima de 10¹².</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>A resolução escreve como 0 os números abaixo de 10⁻¹⁰.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π é mantido como fator e não é elevado.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Uma variável é mantida como fator e não é elevada.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π ou uma variável no expoente ou no índice é omitido.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>A resolução escreve uma potência sem os parênteses de que a base precisa.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Uma raiz não é negativa; o segundo resultado é a outra solução da equação.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>A resolução conserva seis algarismos significativos do decimal que transforma em fração.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Uma potência cujo expoente não é um número inteiro é desenvolvida como se fosse.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>A resolução escreve os denominadores com seis algarismos significativos.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Um passo ultrapassa o que a resolução pode calcular, e ela continua com infinito.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>A resolução arredonda o que escreve e continua com todos os algarismos.</translation>
    </message>
</context>
</TS>
