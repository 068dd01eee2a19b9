<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id">
<context>
    <name></name>
    <message id="Fill in your given numbers:">
        <source>Fill in your given numbers:</source>
        <translation>Isi bilangan yang diketahui:</translation>
    </message>
    <message id="Your Input">
        <source>Your input</source>
        <translation>Masukanmu</translation>
    </message>
    <message id="Expand">
        <source>Expand</source>
        <translation>Buat pecahan senilai</translation>
    </message>
    <message id="Modified Input">
        <source>Rewritten input</source>
        <translation>Masukan yang diubah</translation>
    </message>
    <message id="Step">
        <source>Step</source>
        <translation>Langkah</translation>
    </message>
    <message id="Result">
        <source>Result</source>
        <translation>Hasil</translation>
    </message>
    <message id="noSolution">
        <source>No solution among the real numbers</source>
        <translation>Tidak ada penyelesaian dalam bilangan real</translation>
    </message>
    <message id="recommendedVideoIfUnclear">
        <source>Still unclear? Watch a video</source>
        <translation>Belum jelas? Tonton video</translation>
    </message>
    <message id="touchTounlock">
        <source>Touch to unlock</source>
        <translation>Sentuh untuk membuka</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message id="Convert">
        <source>Convert</source>
        <translation>Ubah bentuk</translation>
    </message>
    <message id="Rate">
        <source>How do you like the app?</source>
        <translation>Apakah kamu suka aplikasi ini?</translation>
    </message>
    <message id="Send">
        <source>Send</source>
        <translation>Kirim</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message id="Thanks">
        <source>Thank you!</source>
        <translation>Terima kasih!</translation>
    </message>
    <message id="error">
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message id="Cancel (math)">
        <source>Cancel the fraction</source>
        <translation>Sederhanakan pecahan</translation>
    </message>
    <message id="Extract a root">
        <source>Extract a root</source>
        <translation>Tarik akar</translation>
    </message>
    <message id="Calculate power">
        <source>Calculate the power</source>
        <translation>Hitung perpangkatan</translation>
    </message>
    <message id="Reciprocal">
        <source>Reciprocal</source>
        <translation>Kebalikan</translation>
    </message>
    <message id="Tavi Solver">
        <source>Tavi Solver</source>
        <translation>Tavi Solver</translation>
    </message>
    <message id="Input">
        <source>Input</source>
        <translation>Masukan</translation>
    </message>
    <message id="Clear">
        <source>Clear</source>
        <translation>Hapus</translation>
    </message>
    <message id="Calculate Title">
        <source>Powers and roots</source>
        <translation>Pangkat dan akar</translation>
    </message>
    <message id="sharingImageQualityTitle">
        <source>Preparing your picture</source>
        <translation>Gambarmu sedang dibuat</translation>
    </message>
    <message id="sharingImageQualityText">
        <source>The whole solution becomes one long picture. For the best quality, send it as a file.</source>
        <translation>Seluruh penyelesaian menjadi satu gambar panjang. Agar tetap tajam, kirimlah sebagai berkas.</translation>
    </message>
    <message id="History">
        <source>History</source>
        <translation>Riwayat</translation>
    </message>
    <message id="Clear History">
        <source>Clear history</source>
        <translation>Hapus riwayat</translation>
    </message>
    <message id="Are you sure to delete your whole history?">
        <source>Are you sure you want to delete your whole history?</source>
        <translation>Yakin ingin menghapus seluruh riwayatmu?</translation>
    </message>
    <message id="Edit">
        <source>Edit</source>
        <translation>Ubah</translation>
    </message>
    <message id="historyDelete">
        <source>Delete %0</source>
        <translation>Hapus %0</translation>
    </message>
    <message id="historyDeleted">
        <source>Calculation deleted</source>
        <translation>Perhitungan dihapus</translation>
    </message>
    <message id="historyCleared">
        <source>History deleted</source>
        <translation>Riwayat dihapus</translation>
    </message>
    <message id="Undo">
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message id="historyMoved">
        <source>Moved to %0 of %1</source>
        <translation>Dipindahkan ke urutan %0 dari %1</translation>
    </message>
    <message id="historyEmpty">
        <source>Nothing here yet. Everything you calculate is kept here, so that you can come back to it.</source>
        <translation>Belum ada apa-apa. Semua yang kamu hitung disimpan di sini, jadi kamu bisa melihatnya lagi.</translation>
    </message>
    <message id="historyCalculate">
        <source>Calculate something</source>
        <translation>Hitung sesuatu</translation>
    </message>
    <message id="historyUntitled">
        <source>Calculation without a formula</source>
        <translation>Perhitungan tanpa rumus</translation>
    </message>
    <message id="historySearch">
        <source>Search the history</source>
        <translation>Cari di riwayat</translation>
    </message>
    <message id="searchClear">
        <source>Clear the search</source>
        <translation>Kosongkan pencarian</translation>
    </message>
    <message id="historyFound">
        <source>Found: %1</source>
        <translation>Ditemukan: %1</translation>
    </message>
    <message id="historyNothingFound">
        <source>No task in the history fits that.</source>
        <translation>Tidak ada perhitungan di riwayat yang cocok.</translation>
    </message>
    <message id="dayToday">
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message id="dayYesterday">
        <source>Yesterday</source>
        <translation>Kemarin</translation>
    </message>
    <message id="dayEarlier">
        <source>Earlier</source>
        <translation>Sebelumnya</translation>
    </message>
    <message id="copyAsTyped">
        <source>Copy as typed</source>
        <translation>Salin seperti diketik</translation>
    </message>
    <message id="historyMore">
        <source>More</source>
        <translation>Lainnya</translation>
    </message>
    <message id="historyExport">
        <source>Export the history</source>
        <translation>Ekspor riwayat</translation>
    </message>
    <message id="historyImport">
        <source>Import a history</source>
        <translation>Impor riwayat</translation>
    </message>
    <message id="historyImported">
        <source>Tasks imported: %1</source>
        <translation>Perhitungan diimpor: %1</translation>
    </message>
    <message id="historyNothingNew">
        <source>All of these tasks are in the history already.</source>
        <translation>Semua perhitungan ini sudah ada di riwayat.</translation>
    </message>
    <message id="historyUnreadable">
        <source>This file cannot be read. Nothing was changed.</source>
        <translation>Berkas ini tidak bisa dibaca. Tidak ada yang diubah.</translation>
    </message>
    <message id="historyTooLarge">
        <source>This file is too large for a history. Nothing was changed.</source>
        <translation>Berkas ini terlalu besar untuk riwayat. Tidak ada yang diubah.</translation>
    </message>
    <message id="historyNoHistory">
        <source>This file holds no history of this app, or it is damaged. Nothing was changed.</source>
        <translation>Berkas ini tidak berisi riwayat aplikasi ini, atau rusak. Tidak ada yang diubah.</translation>
    </message>
    <message id="historyNoFile">
        <source>There is no history file in the folder %1. Put one there and try again.</source>
        <translation>Tidak ada berkas riwayat di folder %1. Taruh berkasnya di sana dan coba lagi.</translation>
    </message>
    <message id="nothingIsKept">
        <source>Nothing can be saved at the moment. Your history lasts until you close the app.</source>
        <translation>Saat ini tidak ada yang dapat disimpan. Riwayatmu bertahan sampai aplikasi ditutup.</translation>
    </message>
    <message id="Assistance">
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message id="noInternet">
        <source>No internet connection</source>
        <translation>Tidak ada koneksi internet</translation>
    </message>
    <message id="dsgvoAccept">
        <source>Accept</source>
        <translation>Setuju</translation>
    </message>
    <message id="dsgvoDecline">
        <source>Decline</source>
        <translation>Tolak</translation>
    </message>
    <message id="dsgvoYoutubeTitle">
        <source>Video privacy</source>
        <translation>Privasi video</translation>
    </message>
    <message id="dsgvoYoutubeText">
        <source>The videos come from YouTube, a service of others. If you accept, they are loaded from YouTube's servers as soon as they come into sight. YouTube then learns your internet address, can store data on your device and can recognise you if you are signed in there.

Until then nothing is loaded. You can withdraw at any time with the lock over the videos, and everything else works without them.</source>
        <translation>Video berasal dari YouTube, layanan pihak lain. Jika kamu setuju, video dimuat dari server YouTube begitu terlihat di layar. YouTube lalu mengetahui alamat internetmu, dapat menyimpan data di perangkatmu, dan dapat mengenalimu jika kamu masuk di sana.

Sebelum itu tidak ada yang dimuat. Kamu dapat mencabut izin kapan saja dengan gembok di atas video, dan yang lain tetap berjalan tanpa video.</translation>
    </message>
    <message id="dsgvoTitlePro">
        <source>Privacy</source>
        <translation>Privasi</translation>
    </message>
    <message id="dsgvoTextPro">
        <source>What you calculate stays on this device. Your tasks, your settings and this answer are stored here only.

Where an address for it is set, the app fetches its list of videos and apps from the internet; nothing about you is sent along. Links open in your browser, and videos come from YouTube only after you have allowed it.</source>
        <translation>Yang kamu hitung tetap berada di perangkat ini. Soal, pengaturan, dan jawabanmu ini hanya disimpan di sini.

Jika alamat untuk itu sudah diatur, aplikasi mengambil daftar video dan aplikasinya dari internet; tidak ada data tentangmu yang dikirim. Tautan terbuka di perambanmu, dan video baru diambil dari YouTube setelah kamu mengizinkannya.</translation>
    </message>
    <message id="onboardingA">
        <source>Welcome to §appname! Here you learn step by step how powers and roots are worked out.</source>
        <translation>Selamat datang di §appname! Di sini kamu belajar langkah demi langkah cara menghitung pangkat dan akar.</translation>
    </message>
    <message id="onboardingB">
        <source>At the top, choose between a power and a root.</source>
        <translation>Di bagian atas, pilih pangkat atau akar.</translation>
    </message>
    <message id="onboardingC">
        <source>Tap a field and type your numbers. Fractions, decimals, π and x, y, z are welcome, too.</source>
        <translation>Sentuh sebuah kolom dan ketik bilanganmu. Pecahan, desimal, π, dan x, y, z juga bisa.</translation>
    </message>
    <message id="onboardingD">
        <source>Tap the check mark, and you see every step. Colours show what happens; a long line scrolls sideways.</source>
        <translation>Sentuh tanda centang, lalu kamu melihat setiap langkah. Warna menunjukkan apa yang terjadi; baris panjang dapat digeser.</translation>
    </message>
    <message id="onboardingE">
        <source>Your tasks stay in the history, which you find in the menu. The share button makes a picture of a working.</source>
        <translation>Soalmu tersimpan di riwayat, yang ada di menu. Tombol bagikan membuat gambar dari penyelesaian.</translation>
    </message>
    <message id="onboardingYoutube1">
        <source>Some steps are easier to understand with a video.</source>
        <translation>Beberapa langkah lebih mudah dipahami dengan video.</translation>
    </message>
    <message id="onboardingYoutube2">
        <source>The videos under a working explain the same topic. Push the row sideways to see more of them.</source>
        <translation>Video di bawah penyelesaian menjelaskan topik yang sama. Geser barisnya ke samping untuk melihat yang lain.</translation>
    </message>
    <message id="onboardingYoutube3">
        <source>They come from YouTube, which then learns your internet address and can store data on your device.</source>
        <translation>Video berasal dari YouTube, yang lalu mengetahui alamat internetmu dan dapat menyimpan data di perangkatmu.</translation>
    </message>
    <message id="onboardingYoutube4">
        <source>While the row is locked, nothing at all is loaded from there.</source>
        <translation>Selama baris terkunci, tidak ada yang dimuat dari sana.</translation>
    </message>
    <message id="onboardingYoutube5">
        <source>You can change your mind at any time: tap the lock over the videos.</source>
        <translation>Kamu dapat berubah pikiran kapan saja: sentuh gembok di atas video.</translation>
    </message>
    <message id="introduction">
        <source>Introduction</source>
        <translation>Pengenalan</translation>
    </message>
    <message id="privacyPolicy">
        <source>Privacy policy</source>
        <translation>Kebijakan privasi</translation>
    </message>
    <message id="Rate this App">
        <source>Rate this app</source>
        <translation>Nilai aplikasi ini</translation>
    </message>
    <message id="Discord">
        <source>Community chat</source>
        <translation>Obrolan komunitas</translation>
    </message>
    <message id="Visit us:">
        <source>Visit us:</source>
        <translation>Kunjungi kami:</translation>
    </message>
    <message id="All in one:">
        <source>All in one:</source>
        <translation>Semua dalam satu:</translation>
    </message>
    <message id="Other apps:">
        <source>Other apps:</source>
        <translation>Aplikasi lain:</translation>
    </message>
    <message id="oppositionError">
        <source>These numbers contradict each other. Please check your input.</source>
        <translation>Bilangan-bilangan ini saling bertentangan. Periksa masukanmu.</translation>
    </message>
    <message id="mustBeBiggerThanXAndLessThanY">
        <source>The value must be greater than %0 and less than %1.</source>
        <translation>Nilainya harus lebih besar dari %0 dan lebih kecil dari %1.</translation>
    </message>
    <message id="mustBeGreatherThanX">
        <source>The value must be greater than %0.</source>
        <translation>Nilainya harus lebih besar dari %0.</translation>
    </message>
    <message id="mustBeLessThanX">
        <source>The value must be less than %0.</source>
        <translation>Nilainya harus lebih kecil dari %0.</translation>
    </message>
    <message id="notEnoughInputValues">
        <source>A value is missing. Please fill in the marked field.</source>
        <translation>Ada nilai yang belum diisi. Isi kolom yang ditandai.</translation>
    </message>
    <message id="inputParameterError">
        <source>This is not a number I can read. Please check the marked field.</source>
        <translation>Ini tidak terbaca sebagai bilangan. Periksa kolom yang ditandai.</translation>
    </message>
    <message id="fractionIncomplete">
        <source>The fraction is incomplete. It needs a number above and below the line.</source>
        <translation>Pecahan belum lengkap. Pecahan perlu pembilang dan penyebut.</translation>
    </message>
    <message id="inputZeroInDenominator">
        <source>You cannot divide by zero. Please change the denominator.</source>
        <translation>Tidak bisa membagi dengan nol. Ubah penyebutnya.</translation>
    </message>
    <message id="toManyNaturalConstantsInSubstring">
        <source>Use π only once in each part of a number.</source>
        <translation>Tulis π hanya sekali di setiap bagian bilangan.</translation>
    </message>
    <message id="naturalConstantInWrongPositionOfSubstring">
        <source>Write π or a letter behind its number, as in 2π or 3x.</source>
        <translation>Tulis π atau huruf di belakang bilangan, seperti 2π atau 3x.</translation>
    </message>
    <message id="toManyVariablesInSubstring">
        <source>Use only one variable in each part of a number.</source>
        <translation>Tulis hanya satu variabel di setiap bagian bilangan.</translation>
    </message>
    <message id="calculationTooLong">
        <source>This would take more steps than anyone can read. Please try a smaller number here.</source>
        <translation>Langkahnya akan terlalu banyak untuk dibaca. Coba bilangan yang lebih kecil di sini.</translation>
    </message>
    <message id="calculationOutOfRange">
        <source>These numbers are too large or too exact for me. Please use smaller or shorter ones.</source>
        <translation>Bilangan ini terlalu besar atau terlalu teliti. Gunakan yang lebih kecil atau lebih pendek.</translation>
    </message>
    <message id="hintTapField">
        <source>Tap a field to begin</source>
        <translation>Sentuh kolom untuk mulai</translation>
    </message>
    <message id="hintBaseAndExponent">
        <source>Base and exponent are missing</source>
        <translation>Basis dan pangkat belum diisi</translation>
    </message>
    <message id="hintBase">
        <source>The base is missing</source>
        <translation>Basis belum diisi</translation>
    </message>
    <message id="hintExponent">
        <source>The exponent is missing</source>
        <translation>Pangkat belum diisi</translation>
    </message>
    <message id="hintRadicand">
        <source>The radicand is missing</source>
        <translation>Radikan belum diisi</translation>
    </message>
    <message id="hintFraction">
        <source>The fraction is not finished</source>
        <translation>Pecahan belum selesai</translation>
    </message>
    <message id="hintDigit">
        <source>A digit is missing</source>
        <translation>Masih kurang satu angka</translation>
    </message>
    <message id="hintNumber">
        <source>This is not a number yet</source>
        <translation>Ini belum merupakan bilangan</translation>
    </message>
    <message id="hintOnePoint">
        <source>There can be only one decimal point</source>
        <translation>Hanya boleh ada satu titik desimal</translation>
    </message>
    <message id="hintOneBar">
        <source>There can be only one fraction bar</source>
        <translation>Hanya boleh ada satu garis pecahan</translation>
    </message>
    <message id="hintZero">
        <source>Zero cannot be a denominator</source>
        <translation>Penyebut tidak boleh nol</translation>
    </message>
    <message id="hintOnePi">
        <source>π goes only once into a number</source>
        <translation>π hanya boleh sekali dalam bilangan</translation>
    </message>
    <message id="hintOrder">
        <source>π or one letter goes behind a number</source>
        <translation>Di belakang bilangan: π atau satu huruf</translation>
    </message>
    <message id="hintOneLetter">
        <source>Only one letter goes into a number</source>
        <translation>Hanya boleh satu huruf dalam bilangan</translation>
    </message>
    <message id="hintTooLong">
        <source>This is too long to write out</source>
        <translation>Ini terlalu panjang untuk ditulis</translation>
    </message>
    <message id="hintOutOfRange">
        <source>This is too large or too exact</source>
        <translation>Ini terlalu besar atau terlalu teliti</translation>
    </message>
    <message id="hintInfinite">
        <source>The result is too large and will show as ∞</source>
        <translation>Hasil terlalu besar, ditampilkan sebagai ∞</translation>
    </message>
    <message id="hintDividesByZero">
        <source>This divides by zero and will show as ∞</source>
        <translation>Ini membagi dengan nol, ditampilkan sebagai ∞</translation>
    </message>
    <message id="hintKey">
        <source>Only digits and π x y z . / − go here</source>
        <translation>Di sini hanya angka dan π x y z . / −</translation>
    </message>
    <message id="hintPaste">
        <source>What was copied is not one clear number</source>
        <translation>Yang disalin bukan bilangan yang jelas</translation>
    </message>
    <message id="hintPasteMinus">
        <source>A minus can only stand in front</source>
        <translation>Tanda minus hanya boleh di depan</translation>
    </message>
    <message id="hintPastePower">
        <source>Only one number goes into this field</source>
        <translation>Kolom ini hanya untuk satu bilangan</translation>
    </message>
    <message id="Cut">
        <source>Cut</source>
        <translation>Potong</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message id="Paste">
        <source>Paste</source>
        <translation>Tempel</translation>
    </message>
    <message id="Select all">
        <source>Select all</source>
        <translation>Pilih semua</translation>
    </message>
    <message id="Kind of task">
        <source>Kind of task</source>
        <translation>Jenis soal</translation>
    </message>
    <message id="Invalid entry">
        <source>Invalid entry</source>
        <translation>Masukan tidak sah</translation>
    </message>
    <message id="Base">
        <source>Base</source>
        <translation>Basis</translation>
    </message>
    <message id="Exponent">
        <source>Exponent</source>
        <translation>Pangkat</translation>
    </message>
    <message id="Radicand">
        <source>Radicand</source>
        <translation>Radikan</translation>
    </message>
    <message id="Root index">
        <source>Root index</source>
        <translation>Indeks akar</translation>
    </message>
    <message id="Power">
        <source>Power</source>
        <translation>Perpangkatan</translation>
    </message>
    <message id="Root">
        <source>Root</source>
        <translation>Akar</translation>
    </message>
    <message id="Delete">
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message id="Calculate">
        <source>Calculate</source>
        <translation>Hitung</translation>
    </message>
    <message id="Decimal point">
        <source>Decimal point</source>
        <translation>Titik desimal</translation>
    </message>
    <message id="Fraction bar">
        <source>Fraction bar</source>
        <translation>Garis pecahan</translation>
    </message>
    <message id="Minus sign">
        <source>Minus sign</source>
        <translation>Tanda minus</translation>
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
        <translation>Bagikan penyelesaian</translation>
    </message>
    <message id="sharingSave">
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message id="sharingPicture">
        <source>Picture</source>
        <translation>Gambar</translation>
    </message>
    <message id="copyAsLatex">
        <source>Copy as LaTeX</source>
        <translation>Salin sebagai LaTeX</translation>
    </message>
    <message id="copyAsMathMl">
        <source>Copy as MathML</source>
        <translation>Salin sebagai MathML</translation>
    </message>
    <message id="copyAsWords">
        <source>Copy as words</source>
        <translation>Salin sebagai kata-kata</translation>
    </message>
    <message id="copyAsPicture">
        <source>Copy as picture</source>
        <translation>Salin sebagai gambar</translation>
    </message>
    <message id="readAloud">
        <source>Read aloud from here</source>
        <translation>Bacakan dari sini</translation>
    </message>
    <message id="readAloudStop">
        <source>Stop reading aloud</source>
        <translation>Berhenti membacakan</translation>
    </message>
    <message id="sharingSaveAs">
        <source>Save as…</source>
        <translation>Simpan sebagai…</translation>
    </message>
    <message id="sharingSaveHere">
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message id="sharingCopy">
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message id="sharingOpen">
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message id="sharingFileName">
        <source>Solution</source>
        <translation>Penyelesaian</translation>
    </message>
    <message id="sharingSaved">
        <source>Saved as %1</source>
        <translation>Disimpan sebagai %1</translation>
    </message>
    <message id="sharingShow">
        <source>Show</source>
        <translation>Tampilkan</translation>
    </message>
    <message id="sharingCopied">
        <source>Copied</source>
        <translation>Disalin</translation>
    </message>
    <message id="sharingNoRoom">
        <source>There is not enough room for the file. Make room or choose another place; nothing was saved.</source>
        <translation>Tempat untuk berkas tidak cukup. Kosongkan tempat atau pilih yang lain; belum ada yang disimpan.</translation>
    </message>
    <message id="sharingNotWritable">
        <source>Nothing can be saved in this folder. Choose another one.</source>
        <translation>Tidak bisa menyimpan di folder ini. Pilih folder lain.</translation>
    </message>
    <message id="sharingNoViewer">
        <source>No program was found that shows pictures. Save the picture instead.</source>
        <translation>Tidak ditemukan program untuk menampilkan gambar. Simpan saja gambarnya.</translation>
    </message>
    <message id="manualButton">
        <source>How it works</source>
        <translation>Cara kerja</translation>
    </message>
    <message id="animateAgainButton">
        <source>Play again</source>
        <translation>Putar lagi</translation>
    </message>
    <message id="next">
        <source>Next</source>
        <translation>Lanjut</translation>
    </message>
    <message id="letsStart">
        <source>Let's start</source>
        <translation>Mulai</translation>
    </message>
    <message id="pageOf">
        <source>Page %1 of %2</source>
        <translation>Halaman %1 dari %2</translation>
    </message>
    <message id="videoGuide">
        <source>About the videos</source>
        <translation>Tentang video</translation>
    </message>
    <message id="videoPrivacyLocked">
        <source>Privacy of the videos: locked</source>
        <translation>Privasi video: terkunci</translation>
    </message>
    <message id="videoPrivacyOpen">
        <source>Privacy of the videos: allowed</source>
        <translation>Privasi video: diizinkan</translation>
    </message>
    <message id="videoMissing">
        <source>No video</source>
        <translation>Tidak ada video</translation>
    </message>
    <message id="videoCovered">
        <source>Video, not ready yet</source>
        <translation>Video, belum siap</translation>
    </message>
    <message id="videoReady">
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message id="videoOutside">
        <source>Watch in the browser</source>
        <translation>Tonton di peramban</translation>
    </message>
    <message id="ratingStars">
        <source>%1 of %2 stars</source>
        <translation>%1 dari %2 bintang</translation>
    </message>
    <message id="grabAdsDiscountForPercentage">
        <source>Get § off</source>
        <translation>Dapatkan diskon §</translation>
    </message>
    <message id="linkNotOpened">
        <source>This link cannot be opened here.</source>
        <translation>Tautan ini tidak bisa dibuka di sini.</translation>
    </message>
    <message id="manual1">
        <source>Choose whether you want a power or a root.</source>
        <translation>Pilih apakah kamu ingin pangkat atau akar.</translation>
    </message>
    <message id="manual2">
        <source>The base; for a root, the number under the root sign. Tap a field to type into it.</source>
        <translation>Basis; pada akar, bilangan di bawah tanda akar. Sentuh kolom untuk mengisinya.</translation>
    </message>
    <message id="manual3">
        <source>The exponent; for a root, its index. An empty index means 2.</source>
        <translation>Pangkat; pada akar, indeksnya. Indeks kosong berarti 2.</translation>
    </message>
    <message id="manual4">
        <source>Point, slash and letters: type 0.5, 3/2, π or x. Minus changes the sign of the field.</source>
        <translation>Titik, garis miring, dan huruf: ketik 0.5, 3/2, π, atau x. Minus mengganti tanda kolom.</translation>
    </message>
    <message id="manual5">
        <source>The key with the cross deletes; the check mark starts the calculation.</source>
        <translation>Tombol dengan tanda silang menghapus; tanda centang memulai perhitungan.</translation>
    </message>
    <message id="manual6">
        <source>The working begins with your task. Rows that are too long scroll sideways.</source>
        <translation>Penyelesaian dimulai dengan soalmu. Baris yang terlalu panjang dapat digeser ke samping.</translation>
    </message>
    <message id="manual7">
        <source>Red: what the next step works on. Blue and violet: numerator and denominator of an exponent.</source>
        <translation>Merah: yang dikerjakan langkah berikutnya. Biru dan ungu: pembilang dan penyebut pangkat.</translation>
    </message>
    <message id="manual8">
        <source>Green: what has just been worked out.</source>
        <translation>Hijau: yang baru saja dihitung.</translation>
    </message>
    <message id="manual9">
        <source>The result, marked by the bar at its left.</source>
        <translation>Hasilnya, ditandai dengan garis di sebelah kiri.</translation>
    </message>
    <message id="pleaseWait">
        <source>Please wait</source>
        <translation>Mohon tunggu</translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="settings">
        <source>Settings</source>
        <translation>Setelan</translation>
    </message>
    <message id="appearance">
        <source>Appearance</source>
        <translation>Tampilan</translation>
    </message>
    <message id="asSystem">
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message id="light">
        <source>Light</source>
        <translation>Terang</translation>
    </message>
    <message id="dark">
        <source>Dark</source>
        <translation>Gelap</translation>
    </message>
    <message id="formulas">
        <source>Formulas</source>
        <translation>Rumus</translation>
    </message>
    <message id="formulaSize">
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message id="formulaSmaller">
        <source>Smaller formulas</source>
        <translation>Perkecil rumus</translation>
    </message>
    <message id="formulaLarger">
        <source>Larger formulas</source>
        <translation>Perbesar rumus</translation>
    </message>
    <message id="workingHere">
        <source>The working appears here.</source>
        <translation>Penyelesaian akan tampil di sini.</translation>
    </message>
    <message id="language">
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message id="languageName">
        <source>English</source>
        <translation>Bahasa Indonesia</translation>
    </message>
    <message id="fromNextStart">
        <source>Another language is spoken from the next start on.</source>
        <translation>Bahasa lain berlaku mulai saat aplikasi dibuka lagi.</translation>
    </message>
    <message id="measurement">
        <source>Usage figures</source>
        <translation>Data penggunaan</translation>
    </message>
    <message id="measurementAccept">
        <source>Send which functions are used</source>
        <translation>Kirim fungsi yang dipakai</translation>
    </message>
    <message id="measurementWhat">
        <source>What is sent</source>
        <translation>Yang dikirim</translation>
    </message>
    <message id="measurementNone">
        <source>This version keeps and sends nothing about its use.</source>
        <translation>Versi ini tidak menyimpan dan tidak mengirim apa pun tentang penggunaannya.</translation>
    </message>
    <message id="measurementText">
        <source>Only if you allow it in the settings, the app keeps which of its functions are used and sends that to %1. You can withdraw there at any time; what is kept is then deleted at once.</source>
        <translation>Hanya jika kamu mengizinkannya di setelan, aplikasi menyimpan fungsi mana yang dipakai dan mengirimnya ke %1. Kamu dapat mencabut izin di sana kapan saja; yang tersimpan lalu langsung dihapus.</translation>
    </message>
    <message id="measurementWorkings">
        <source>Then what you calculate does not stay on this device only: what you typed and the solution are sent along.</source>
        <translation>Jika demikian, yang kamu hitung tidak hanya berada di perangkat ini: yang kamu ketik dan penyelesaiannya ikut dikirim.</translation>
    </message>
    <message id="measurementEvents">
        <source>With each event go its time, a random number that changes every day, and the name and version of the app; nothing that names you or your device. These are the events, and what goes with each:</source>
        <translation>Bersama setiap peristiwa dikirim waktunya, sebuah bilangan acak yang berganti setiap hari, serta nama dan versi aplikasi; tidak ada yang menyebut kamu atau perangkatmu. Inilah peristiwanya dan yang dikirim bersama masing-masing:</translation>
    </message>
    <message id="exactButton">
        <source>Exact</source>
        <translation>Eksak</translation>
    </message>
    <message id="exactTitle">
        <source>Exact value</source>
        <translation>Nilai eksak</translation>
    </message>
    <message id="exactMoreDigits">
        <source>More digits</source>
        <translation>Lebih banyak digit</translation>
    </message>
    <message id="exactFewerDigits">
        <source>Fewer digits</source>
        <translation>Lebih sedikit digit</translation>
    </message>
    <message id="copyAsText">
        <source>Copy as text</source>
        <translation>Salin sebagai teks</translation>
    </message>
    <message id="exactLineFalse">
        <source>not exactly true</source>
        <translation>tidak tepat benar</translation>
    </message>
    <message id="exactWholeNumber">
        <source>A whole number of %1 digits. It begins with %2 and ends with %3.</source>
        <translation>Bilangan bulat dengan %1 digit. Dimulai dengan %2 dan diakhiri dengan %3.</translation>
    </message>
    <message id="mathAbsoluteValue">
        <source>absolute value of %1 end of absolute value</source>
        <translation>nilai mutlak dari %1 akhir nilai mutlak</translation>
    </message>
    <message id="mathBrackets">
        <source>open bracket %1 close bracket</source>
        <translation>buka kurung siku %1 tutup kurung siku</translation>
    </message>
    <message id="mathBraces">
        <source>open brace %1 close brace</source>
        <translation>buka kurung kurawal %1 tutup kurung kurawal</translation>
    </message>
    <message id="mathParentheses">
        <source>open parenthesis %1 close parenthesis</source>
        <translation>buka kurung %1 tutup kurung</translation>
    </message>
    <message id="mathFraction">
        <source>%1 over %2</source>
        <translation>%1 per %2</translation>
    </message>
    <message id="mathLongFraction">
        <source>fraction %1 over %2 end of fraction</source>
        <translation>pecahan %1 per %2 akhir pecahan</translation>
    </message>
    <message id="mathPeriod">
        <source>%1 repeating</source>
        <translation>%1 berulang</translation>
    </message>
    <message id="mathSquareRoot">
        <source>square root of %1</source>
        <translation>akar kuadrat dari %1</translation>
    </message>
    <message id="mathLongSquareRoot">
        <source>square root of %1 end of root</source>
        <translation>akar kuadrat dari %1 akhir akar</translation>
    </message>
    <message id="mathCubeRoot">
        <source>cube root of %1</source>
        <translation>akar pangkat tiga dari %1</translation>
    </message>
    <message id="mathLongCubeRoot">
        <source>cube root of %1 end of root</source>
        <translation>akar pangkat tiga dari %1 akhir akar</translation>
    </message>
    <message id="mathRoot">
        <source>root with index %1 of %2</source>
        <translation>akar dengan indeks %1 dari %2</translation>
    </message>
    <message id="mathLongRoot">
        <source>root with index %1 of %2 end of root</source>
        <translation>akar dengan indeks %1 dari %2 akhir akar</translation>
    </message>
    <message id="mathIndex">
        <source>%1 sub %2</source>
        <translation>%1 indeks %2</translation>
    </message>
    <message id="mathPower">
        <source>%1 to the power of %2</source>
        <translation>%1 pangkat %2</translation>
    </message>
    <message id="mathLongPower">
        <source>%1 to the power of %2 end of power</source>
        <translation>%1 pangkat %2 akhir pangkat</translation>
    </message>
    <message id="mathPlus">
        <source>plus</source>
        <translation>ditambah</translation>
    </message>
    <message id="mathMinus">
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message id="mathPlusMinus">
        <source>plus or minus</source>
        <translation>plus minus</translation>
    </message>
    <message id="mathDividedBy">
        <source>divided by</source>
        <translation>dibagi</translation>
    </message>
    <message id="mathEquals">
        <source>equals</source>
        <translation>sama dengan</translation>
    </message>
    <message id="mathNotEqual">
        <source>is not equal to</source>
        <translation>tidak sama dengan</translation>
    </message>
    <message id="mathApproximately">
        <source>is approximately</source>
        <translation>kira-kira sama dengan</translation>
    </message>
    <message id="mathLess">
        <source>is less than</source>
        <translation>kurang dari</translation>
    </message>
    <message id="mathGreater">
        <source>is greater than</source>
        <translation>lebih dari</translation>
    </message>
    <message id="mathLessOrEqual">
        <source>is less than or equal to</source>
        <translation>kurang dari atau sama dengan</translation>
    </message>
    <message id="mathGreaterOrEqual">
        <source>is greater than or equal to</source>
        <translation>lebih dari atau sama dengan</translation>
    </message>
    <message id="mathInfinity">
        <source>infinity</source>
        <translation>tak hingga</translation>
    </message>
    <message id="mathDegrees">
        <source>degrees</source>
        <translation>derajat</translation>
    </message>
    <message id="mathPercent">
        <source>percent</source>
        <translation>persen</translation>
    </message>
    <message id="mathFactorial">
        <source>factorial</source>
        <translation>faktorial</translation>
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
        <translation>kosinus</translation>
    </message>
    <message id="mathTangent">
        <source>tangent</source>
        <translation>tangen</translation>
    </message>
    <message id="mathLogarithm">
        <source>logarithm</source>
        <translation>logaritma</translation>
    </message>
    <message id="mathNaturalLogarithm">
        <source>natural logarithm</source>
        <translation>logaritma natural</translation>
    </message>
    <message id="mathTimes">
        <source>times</source>
        <translation>kali</translation>
    </message>
    <message id="chartAxisRange">
        <source>%1 from %2 to %3</source>
        <translation>%1 dari %2 sampai %3</translation>
    </message>
    <message id="chartNoPoints">
        <source>%1: no points</source>
        <translation>%1: tidak ada titik</translation>
    </message>
    <message id="chartOnePoint">
        <source>%1: one point, %2</source>
        <translation>%1: satu titik, %2</translation>
    </message>
    <message id="chartPoints">
        <source>%1: %2 points, from %3 to %4, lowest %5, highest %6</source>
        <translation>%1: %2 titik, dari %3 sampai %4, terendah %5, tertinggi %6</translation>
    </message>
    <message id="chartValueAt">
        <source>%1 at %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message id="chartTree">
        <source>probability tree of %1 trials, probability of success %2, of failure %3</source>
        <translation>diagram pohon dari %1 percobaan, peluang berhasil %2, peluang gagal %3</translation>
    </message>
    <message id="chartAngle">
        <source>unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5</source>
        <translation>lingkaran satuan, sudut %1, putaran penuh %2 dan %3, kosinus %4, sinus %5</translation>
    </message>
    <message id="chartNoAngle">
        <source>unit circle</source>
        <translation>lingkaran satuan</translation>
    </message>
    <message id="chartQuadrant">
        <source>quadrant %1</source>
        <translation>kuadran %1</translation>
    </message>
    <message id="chartLine">
        <source>line chart</source>
        <translation>diagram garis</translation>
    </message>
    <message id="chartCurve">
        <source>curve</source>
        <translation>kurva</translation>
    </message>
    <message id="chartScatter">
        <source>chart of points</source>
        <translation>diagram pencar</translation>
    </message>
    <message id="chartArea">
        <source>area chart</source>
        <translation>diagram area</translation>
    </message>
    <message id="exactZeroToTheZero">
        <source>Zero to the power of zero has no value.</source>
        <translation>Nol pangkat nol tidak memiliki nilai.</translation>
    </message>
    <message id="exactDivisionByZero">
        <source>Zero cannot be divided by, and a negative power of zero would do so.</source>
        <translation>Pembagian dengan nol tidak mungkin, dan pangkat negatif dari nol akan melakukannya.</translation>
    </message>
    <message id="exactRootWithIndexZero">
        <source>There is no root with the index zero.</source>
        <translation>Tidak ada akar dengan indeks nol.</translation>
    </message>
    <message id="exactEvenRootOfNegative">
        <source>An even root of a negative number is no real number.</source>
        <translation>Akar genap dari bilangan negatif bukan bilangan real.</translation>
    </message>
    <message id="exactIrrationalPowerOfNegative">
        <source>A negative number has no real power with an irrational exponent.</source>
        <translation>Bilangan negatif tidak memiliki pangkat real dengan eksponen irasional.</translation>
    </message>
    <message id="exactNegativeToVariable">
        <source>Whether a power of a negative number is real depends on the exponent.</source>
        <translation>Apakah pangkat dari bilangan negatif itu real bergantung pada eksponennya.</translation>
    </message>
    <message id="exactTooLarge">
        <source>The number has more digits than can be written out.</source>
        <translation>Bilangan ini memiliki lebih banyak digit daripada yang dapat dituliskan.</translation>
    </message>
    <message id="exactEvenRoot">
        <source>The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and %3.</source>
        <translation>Tanda akar berarti bilangan yang tidak negatif. Persamaan %1 memiliki dua penyelesaian: %2 dan %3.</translation>
    </message>
    <message id="exactEvenRootOfZero">
        <source>The equation %1 is solved by zero alone.</source>
        <translation>Persamaan %1 hanya memiliki penyelesaian nol.</translation>
    </message>
    <message id="ruleZeroToTheZero">
        <source>The working takes zero to the power of zero as 1.</source>
        <translation>Pengerjaan ini menganggap nol pangkat nol sama dengan 1.</translation>
    </message>
    <message id="ruleInfinity">
        <source>The working counts numbers over 10¹² as infinite.</source>
        <translation>Pengerjaan ini menganggap bilangan di atas 10¹² tak hingga.</translation>
    </message>
    <message id="ruleZero">
        <source>The working writes numbers below 10⁻¹⁰ as 0.</source>
        <translation>Pengerjaan ini menulis bilangan di bawah 10⁻¹⁰ sebagai 0.</translation>
    </message>
    <message id="rulePi">
        <source>π is carried along as a factor and not raised.</source>
        <translation>π dibawa sebagai faktor dan tidak dipangkatkan.</translation>
    </message>
    <message id="ruleVariable">
        <source>A variable is carried along as a factor and not raised.</source>
        <translation>Variabel dibawa sebagai faktor dan tidak dipangkatkan.</translation>
    </message>
    <message id="ruleSymbolInExponent">
        <source>π or a variable in the exponent or in the index is left out.</source>
        <translation>π atau variabel dalam eksponen atau indeks diabaikan.</translation>
    </message>
    <message id="ruleBrackets">
        <source>The working writes a power without the brackets that its base needs.</source>
        <translation>Pengerjaan ini menulis pangkat tanpa tanda kurung yang diperlukan basisnya.</translation>
    </message>
    <message id="ruleSecondSolution">
        <source>A root is not negative; the second result is the other solution of the equation.</source>
        <translation>Akar tidak negatif; hasil kedua adalah penyelesaian lain dari persamaan.</translation>
    </message>
    <message id="ruleExpansion">
        <source>The working keeps six significant digits of a decimal that it turns into a fraction.</source>
        <translation>Pengerjaan ini mempertahankan enam angka penting dari desimal yang diubah menjadi pecahan.</translation>
    </message>
    <message id="ruleCopies">
        <source>A power whose exponent is no whole number is written out as if it were one.</source>
        <translation>Pangkat yang eksponennya bukan bilangan bulat dijabarkan seolah-olah bulat.</translation>
    </message>
    <message id="ruleDenominator">
        <source>The working writes denominators with six significant digits.</source>
        <translation>Pengerjaan ini menulis penyebut dengan enam angka penting.</translation>
    </message>
    <message id="ruleOverflow">
        <source>A step is beyond what the working can calculate, and it goes on with infinity.</source>
        <translation>Satu langkah melampaui yang dapat dihitung, dan pengerjaan berlanjut dengan tak hingga.</translation>
    </message>
    <message id="rulePlaces">
        <source>The working rounds what it writes and goes on with all digits.</source>
        <translation>Pengerjaan ini membulatkan yang ditulis dan berlanjut dengan semua digit.</translation>
    </message>
</context>
</TS>
