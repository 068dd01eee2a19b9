<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Escribe los números dados:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Tu entrada</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Amplificar la fracción</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Entrada transformada</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>No hay solución en los números reales</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>¿Aún hay dudas? Mira un vídeo</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Toca para desbloquear</translation>
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
        <translation>¿Te gusta la aplicación?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>¡Gracias!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Simplificar la fracción</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Extraer la raíz</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Calcular la potencia</translation>
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
        <translation>Borrar</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Potencias y raíces</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Preparando tu imagen</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>Toda la solución se convierte en una imagen larga. Para la mejor calidad, envíala como archivo.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Borrar el historial</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>¿Seguro que quieres borrar todo tu historial?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Eliminar %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Cálculo eliminado</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>Historial borrado</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Movido al puesto %0 de %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Aquí no hay nada todavía. Todo lo que calcules se guarda aquí para que puedas volver a verlo.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Calcular algo</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Cálculo sin fórmula</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Buscar en el historial</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>Ningún cálculo del historial coincide.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Antes</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Copiar como se escribió</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Exportar el historial</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Importar un historial</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Cálculos importados: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Todos estos cálculos ya están en el historial.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Este archivo no se puede leer. No se ha cambiado nada.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Este archivo es demasiado grande para un historial. No se ha cambiado nada.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>Este archivo no contiene un historial de esta app o está dañado. No se ha cambiado nada.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>En la carpeta %1 no hay ningún archivo de historial. Pon uno ahí e inténtalo de nuevo.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Ahora no se puede guardar nada. Tu historial dura hasta que cierres la aplicación.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Sin conexión a Internet</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Rechazar</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Privacidad de los vídeos</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Los vídeos vienen de YouTube, un servicio ajeno. Si aceptas, se cargan desde los servidores de YouTube en cuanto quedan a la vista. YouTube conoce entonces tu dirección de Internet, puede guardar datos en tu dispositivo y reconocerte si has iniciado sesión allí.

Hasta entonces no se carga nada. Puedes retirar tu permiso en cualquier momento con el candado que está sobre los vídeos; todo lo demás funciona sin ellos.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>Lo que calculas se queda en este dispositivo. Tus ejercicios, tus ajustes y esta respuesta se guardan solo aquí.

Si hay una dirección prevista para ello, la aplicación descarga de Internet su lista de vídeos y aplicaciones; no se envía nada sobre ti. Los enlaces se abren en tu navegador, y los vídeos solo vienen de YouTube cuando lo has permitido.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>¡Te damos la bienvenida a §appname! Aquí aprendes paso a paso a calcular potencias y raíces.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>Arriba, elige entre potencia y raíz.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Toca un campo y escribe tus números. También valen fracciones, decimales, π y x, y, z.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Toca la marca de verificación y verás cada paso. Los colores muestran lo que ocurre; una línea larga se desplaza de lado.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Tus ejercicios quedan en el historial, que está en el menú. El botón de compartir hace una imagen de la solución.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Algunos pasos se entienden mejor con un vídeo.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Los vídeos bajo una solución explican el mismo tema. Desliza la fila hacia un lado para ver más.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Vienen de YouTube, que conoce entonces tu dirección de Internet y puede guardar datos en tu dispositivo.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Mientras la fila está bloqueada, no se carga nada de allí.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Puedes cambiar de opinión cuando quieras: toca el candado que está sobre los vídeos.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Introducción</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Valorar esta aplicación</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Chat de la comunidad</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Visítanos:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Todo en uno:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Otras aplicaciones:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Estos números se contradicen. Revisa tu entrada.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>El valor debe ser mayor que %0 y menor que %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>El valor debe ser mayor que %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>El valor debe ser menor que %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Falta un valor. Completa el campo marcado.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>No puedo leer esto como número. Revisa el campo marcado.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>La fracción está incompleta. Necesita un numerador y un denominador.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>No se puede dividir entre cero. Cambia el denominador.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Escribe π solo una vez en cada parte de un número.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Escribe π o una letra detrás del número, como en 2π o 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Escribe solo una variable en cada parte de un número.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Serían más pasos de los que se pueden leer. Prueba aquí con un número más pequeño.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Estos números son demasiado grandes o demasiado exactos para mí. Usa otros más pequeños o más cortos.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Toca un campo para empezar</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Faltan la base y el exponente</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Falta la base</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Falta el exponente</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Falta el radicando</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>La fracción no está terminada</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Falta una cifra</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Esto aún no es un número</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Solo puede haber un punto decimal</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Solo puede haber una barra de fracción</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>El denominador no puede ser cero</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π solo cabe una vez en un número</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>Detrás del número va π o una letra</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Solo cabe una letra en un número</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>Es demasiado largo para escribirlo</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>Es demasiado grande o demasiado exacto</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>El resultado es muy grande: se verá como ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Aquí se divide entre cero: se verá como ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Aquí solo van cifras y π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>Lo copiado no es un número claro</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>El menos solo puede ir delante</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>En este campo solo cabe un número</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Tipo de ejercicio</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Entrada no válida</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Base</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Exponente</translation>
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
        <translation>Potencia</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Raíz</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Calcular</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Punto decimal</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Barra de fracción</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Signo menos</translation>
    </message>
    <message id="Pi">
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message id="menuButton">
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message id="shareButton">
        <source>Share the solution</source>
        <translation>Compartir la solución</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Imagen</translation>
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
        <translation>Copiar en palabras</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Copiar como imagen</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Leer en voz alta desde aquí</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Parar la lectura</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Guardar</translation>
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
        <translation>Solución</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
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
        <translation>No hay espacio suficiente para el archivo. Haz sitio o elige otro lugar; no se ha guardado nada.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>En esta carpeta no se puede guardar. Elige otra.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>No se ha encontrado ningún programa que muestre imágenes. Guarda la imagen.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>Cómo funciona</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Repetir</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>¡Empezar!</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>Sobre los vídeos</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Privacidad de los vídeos: bloqueado</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Privacidad de los vídeos: permitido</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Sin vídeo</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Vídeo, aún no está listo</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Ver en el navegador</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 de %2 estrellas</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Consigue § de descuento</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Este enlace no se puede abrir aquí.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Elige si quieres una potencia o una raíz.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>La base; en una raíz, el número bajo el signo radical. Toca un campo para escribir en él.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>El exponente; en una raíz, su índice. Un índice vacío vale 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Punto, barra y letras: escribe 0.5, 3/2, π o x. El menos cambia el signo del campo.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>La tecla con el aspa borra; la marca de verificación inicia el cálculo.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>La solución empieza con tu ejercicio. Las filas demasiado largas se desplazan de lado.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Rojo: con lo que trabaja el paso siguiente. Azul y violeta: numerador y denominador de un exponente.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Verde: lo que se acaba de calcular.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>El resultado, marcado con la barra a su izquierda.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Espera un momento</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Apariencia</translation>
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
        <translation>Oscuro</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Fórmulas</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Fórmulas más pequeñas</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Fórmulas más grandes</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>Aquí aparecerá la solución.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Español</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>El nuevo idioma vale desde el próximo inicio.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Datos de uso</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Enviar qué funciones se usan</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>Qué se envía</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Esta versión no guarda ni envía nada sobre su uso.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Solo si lo permites en los ajustes, la aplicación guarda qué funciones suyas se usan y lo envía a %1. Allí puedes retirar el permiso en cualquier momento; lo guardado se borra entonces enseguida.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Entonces lo que calculas no se queda solo en este dispositivo: también se envían lo que has escrito y la solución.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>Con cada evento van su hora, un número al azar que cambia cada día, y el nombre y la versión de la aplicación; nada que te nombre a ti ni a tu dispositivo. Estos son los eventos y lo que va con cada uno:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Exacto</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Valor exacto</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Más cifras</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Menos cifras</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Copiar como texto</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>no es exactamente cierto</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Un número entero de %1 cifras. Empieza por %2 y termina en %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>valor absoluto de %1 fin del valor absoluto</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>abre corchete %1 cierra corchete</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>abre llave %1 cierra llave</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>abre paréntesis %1 cierra paréntesis</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 sobre %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>fracción %1 sobre %2 fin de la fracción</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>período %1</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>raíz cuadrada de %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>raíz cuadrada de %1 fin de la raíz</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>raíz cúbica de %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>raíz cúbica de %1 fin de la raíz</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>raíz de índice %1 de %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>raíz de índice %1 de %2 fin de la raíz</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 subíndice %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 elevado a %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 elevado a %2 fin del exponente</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>más</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>menos</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>más o menos</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>dividido entre</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>es igual a</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>es distinto de</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>es aproximadamente</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>es menor que</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>es mayor que</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>es menor o igual que</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>es mayor o igual que</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>infinito</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>grados</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>por ciento</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>factorial</translation>
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
        <translation>coseno</translation>
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
        <translation>por</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 de %2 a %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: sin puntos</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: un punto, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: %2 puntos, de %3 a %4, mínimo %5, máximo %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>diagrama de árbol de %1 pruebas, probabilidad de éxito %2, de fracaso %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>circunferencia unitaria, ángulo %1, vueltas completas %2 y %3, coseno %4, seno %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>circunferencia unitaria</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>cuadrante %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>gráfico de líneas</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>curva</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>gráfico de puntos</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>gráfico de áreas</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Cero elevado a cero no tiene valor.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>No se puede dividir entre cero, y una potencia negativa de cero lo haría.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>No existe ninguna raíz de índice cero.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Una raíz de índice par de un número negativo no es un número real.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>Un número negativo no tiene potencia real de exponente irracional.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>Que una potencia de un número negativo sea real depende del exponente.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>El número tiene más cifras de las que se pueden escribir.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>El signo de raíz indica el número que no es negativo. La ecuación %1 tiene dos soluciones: %2 y %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>La ecuación %1 tiene como única solución cero.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>El procedimiento toma cero elevado a cero como 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>El procedimiento considera infinitos los números mayores que 10¹².</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>El procedimiento escribe como 0 los números menores que 10⁻¹⁰.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π se arrastra como factor y no se eleva.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Una variable se arrastra como factor y no se eleva.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π o una variable en el exponente o en el índice se omite.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>El procedimiento escribe una potencia sin los paréntesis que necesita su base.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Una raíz no es negativa; el segundo resultado es la otra solución de la ecuación.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>El procedimiento conserva seis cifras significativas del decimal que convierte en fracción.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Una potencia cuyo exponente no es un número entero se desarrolla como si lo fuera.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>El procedimiento escribe los denominadores con seis cifras significativas.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Un paso supera lo que el procedimiento puede calcular, y este sigue con infinito.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>El procedimiento redondea lo que escribe y sigue con todas las cifras.</translation>
    </message>
</context>
</TS>
