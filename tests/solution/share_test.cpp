// From the tap on the share button to the picture in a file.
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <csignal>

#include <sys/resource.h>

#include "platform/localization.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/screenshot.h"
#include "shell/frame/view_manager.h"
#include "solution/share/share_sheet_controller.h"
#include "solution/solution_stage.h"

namespace tavi {
namespace {

class ShareTest : public SolutionStage {
 protected:
  ShareTest() {
    QObject::connect(root.get(), &ViewController::presentedControllerChanged, [this] {
      const ViewController* shown = root->presentedController();
      history.append(shown ? QString::fromLatin1(shown->metaObject()->className()) : QString());
    });
  }

  void answerTheAlert() { dynamic_cast<AlertController&>(*root->presentedController()).choose(0); }
  ShareSheetController* sheet() { return qobject_cast<ShareSheetController*>(root->presentedController()); }
  static bool waitForThePicture() {
    return QTest::qWaitFor([] { return !isTakingScreenshot; });
  }
  void openSheet() {
    show({formulaStep("Your Input", "2^{3}"), formulaStep("Result", "=8")});
    solution->tappedShareButton();
    answerTheAlert();
    ASSERT_TRUE(waitForThePicture());
    ASSERT_TRUE(sheet());
  }

  QStringList history;
  const QString alert = "tavi::AlertController";
  const QString sheetClass = "tavi::ShareSheetController";
};

TEST_F(ShareTest, NothingIsSharedWithoutASolution) {
  solution->tappedShareButton();
  EXPECT_FALSE(isTakingScreenshot);
  EXPECT_TRUE(history.isEmpty());
}

TEST_F(ShareTest, OneSheetComesWhetherTheAnswerOrThePictureComesFirst) {
  for (const bool isAnswerFirst : {true, false}) {
    history.clear();
    show(SolutionSteps(20, formulaStep("Step", "\\frac{1}{2}")));
    table().setProperty("contentY", 500);
    solution->tappedShareButton();
    EXPECT_TRUE(isTakingScreenshot);
    EXPECT_TRUE(ViewManager::shared().isSpinnerVisible());
    if (isAnswerFirst) answerTheAlert();
    ASSERT_TRUE(waitForThePicture());
    EXPECT_FALSE(ViewManager::shared().isSpinnerVisible());
    if (!isAnswerFirst) {
      EXPECT_EQ(history, QStringList{alert});
      answerTheAlert();
    }
    ASSERT_EQ(history, (QStringList{alert, "", sheetClass}));
    EXPECT_EQ(sheet()->picture().width(), (396 + 32) * 2);
    EXPECT_EQ(table().property("contentY").toDouble(), 500) << "the table on the screen stays where it is";
    sheet()->close();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sheet(); }));
    EXPECT_EQ(history, (QStringList{alert, "", sheetClass, ""}));
    tabs->select(0);
  }
}

TEST_F(ShareTest, SurvivesThatTheSolutionIsClearedMeanwhile) {
  show(SolutionSteps(20, formulaStep("Step", "\\frac{1}{2}")));
  solution->tappedShareButton();
  solution->handleClearAllButton();
  answerTheAlert();
  ASSERT_TRUE(waitForThePicture());
  ASSERT_TRUE(sheet());
  EXPECT_GT(sheet()->picture().height(), 2000 * 2) << "what was asked for is shared";
}

TEST_F(ShareTest, TheKeyboardWalksTheSheetAndEscapeClosesIt) {
  openSheet();
  const auto focused = [this] { return window.activeFocusItem()->objectName(); };
  QStringList way{focused()};
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Up}) {
    QTest::keyClick(&window, key);
    way.append(focused());
  }
  EXPECT_EQ(way, (QStringList{"save", "copy", "open", "copyLatex", "open"}));
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !sheet(); }));
}

TEST_F(ShareTest, TheSheetStandsAtTheFootWithRowsLargeEnoughForAFinger) {
  openSheet();
  const QQuickItem* last = nullptr;
  for (const char* name : {"save", "copy", "open", "copyLatex", "closeSheet"}) {
    last = sheet()->view()->findChild<QQuickItem*>(name);
    ASSERT_TRUE(last) << name;
    EXPECT_GE(last->height(), 48) << name;
  }
  EXPECT_TRUE(QTest::qWaitFor([&] {
    const double foot = last->mapToScene({0, last->height()}).y();
    return foot > window.height() - 20 && foot <= window.height();
  }));
}

/// A sheet without a page; the picture is too large for a small disk.
class ShareSheetTest : public testing::Test {
 protected:
  ShareSheetTest() : picture(200, 200, QImage::Format_RGB32) {
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        picture.setPixel(x, y, 0xff000000U | (static_cast<unsigned>(x * (y + 1)) * 7919U));
  }

  void waitUntilWritten(const ShareSheetController& sheet) {
    EXPECT_TRUE(QTest::qWaitFor([&sheet] { return !sheet.isBusy(); }));
  }
  QStringList files() { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir folder;
  QImage picture;
};

TEST_F(ShareSheetTest, SavesThePictureAsItIs) {
  ShareSheetController sheet({.picture = picture, .subject = "2 to the power of 3"});
  sheet.saveAs(QUrl::fromLocalFile(folder.filePath("mine")));
  EXPECT_TRUE(sheet.isBusy());
  waitUntilWritten(sheet);
  EXPECT_EQ(sheet.failure(), "");
  EXPECT_EQ(QImage(folder.filePath("mine.png")).convertToFormat(QImage::Format_RGB32), picture);
}

TEST_F(ShareSheetTest, ReplacesNoFileThatTheDialogDidNotAskAbout) {
  for (const auto& [chosen, written] :
       {std::pair{"mine", "mine.png"}, {"mine", "mine (2).png"}, {"mine.jpg", "mine.jpg.png"}}) {
    ShareSheetController sheet({.picture = picture, .subject = "2 to the power of 3"});
    sheet.saveAs(QUrl::fromLocalFile(folder.filePath(chosen)));
    waitUntilWritten(sheet);
    EXPECT_EQ(QImage(folder.filePath(written)).size(), picture.size()) << written;
    picture = QImage(3, 3, QImage::Format_RGB32);
  }
  EXPECT_EQ(QImage(folder.filePath("mine.png")).size(), QSize(200, 200));
}

TEST_F(ShareSheetTest, SaysWhenAFolderCannotBeWrittenTo) {
  for (const QUrl& file :
       {QUrl::fromLocalFile("/proc/no folder/x.png"), QUrl::fromLocalFile(folder.filePath("none/x.png")),
        QUrl("https://example.org/x.png"), QUrl()}) {
    ShareSheetController sheet({.picture = picture, .subject = "2 to the power of 3"});
    sheet.saveAs(file);
    waitUntilWritten(sheet);
    EXPECT_EQ(sheet.failure(), localized("sharingNotWritable"));
    sheet.setProperty("format", QVariant::fromValue(ShareSheetController::Format::Svg));
    EXPECT_EQ(sheet.failure(), "");
  }
}

TEST_F(ShareSheetTest, OnAFullDiskNoHalfFileRemains) {
  const QString path = folder.filePath("mine.png");
  QFile former(path);
  ASSERT_TRUE(former.open(QFile::WriteOnly) && former.write("former") == 6);
  former.close();

  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{10'000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  ShareSheetController sheet({.picture = picture, .subject = "2 to the power of 3"});
  sheet.saveAs(QUrl::fromLocalFile(path));
  waitUntilWritten(sheet);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);

  EXPECT_EQ(sheet.failure(), localized("sharingNoRoom"));
  EXPECT_EQ(files(), QStringList{"mine.png"});
  ASSERT_TRUE(former.open(QFile::ReadOnly));
  EXPECT_EQ(former.readAll(), "former");
}

TEST_F(ShareSheetTest, OpensACopyAndSaysWhenNothingCan) {
  for (const bool canOpen : {true, false}) {
    QUrl opened;
    Links links;
    links.setHandler({}, [&opened, canOpen](const QUrl& address) {
      opened = address;
      return canOpen;
    });
    ShareSheetController sheet({.picture = picture}, links);
    sheet.open();
    waitUntilWritten(sheet);
    EXPECT_EQ(QImage(opened.toLocalFile()).size(), picture.size());
    EXPECT_EQ(sheet.failure(), canOpen ? "" : localized("sharingNoViewer"));
  }
}

TEST_F(ShareSheetTest, CopiesThePicture) {
  ShareSheetController({.picture = picture}).copy();
  EXPECT_EQ(QGuiApplication::clipboard()->image(), picture);
}

TEST_F(ShareSheetTest, OneTapSavesUnderASpeakingNameThatIsFree) {
  qputenv("HOME", folder.path().toLocal8Bit());
  const QDir pictures(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
  ASSERT_TRUE(pictures.path().startsWith(folder.path()) && pictures.mkpath("."));
  const QString name = localized("sharingFileName") + " 3 over 2 to the power of minus 2";
  QUrl opened;
  Links links;
  links.setHandler({}, [&opened](const QUrl& file) {
    opened = file;
    return false;
  });
  for (const QString& ending : {QString(), QStringLiteral(" (2)")}) {
    const QString path = pictures.filePath(name + ending + ".png");
    ShareSheetController sheet({.picture = picture, .subject = "3 over 2, to the power of: minus 2"}, links);
    EXPECT_EQ(sheet.proposedFile().toLocalFile(), path);
    sheet.save();
    waitUntilWritten(sheet);
    EXPECT_EQ(QImage(path).size(), picture.size());
    EXPECT_TRUE(ViewManager::shared().toastText().contains(localized("sharingSaved").section('%', 0, 0)))
        << "says where";
  }
  ViewManager::chooseToastAction();
  EXPECT_EQ(opened, QUrl::fromLocalFile(pictures.filePath(name + " (2).png")));
  EXPECT_EQ(ViewManager::shared().toastText(), localized("sharingNoViewer")) << "nothing shows it";
  const QString longName =
      ShareSheetController({.picture = picture, .subject = QString("word ").repeated(100)})
          .proposedFile()
          .fileName();
  EXPECT_LT(longName.size(), 100);
}

}  // namespace
}  // namespace tavi
