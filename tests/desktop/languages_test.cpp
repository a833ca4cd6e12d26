// The windows in each language that they speak.

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QMenu>
#include <QTranslator>

#include "desktop/setting_widgets.h"
#include "tests/desktop/description.h"
#include "tests/desktop/window_fixture.h"

namespace {

class Languages : public tests::WindowTest {
 protected:
  /// Texts that do not fit into their place.
  static std::string cutOff(const QWidget& window) {
    QString texts;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
      const bool hasText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                           qobject_cast<const QComboBox*>(widget) != nullptr ||
                           qobject_cast<const QLabel*>(widget) != nullptr;
      const int shown = widget->visibleRegion().boundingRect().width();
      if (hasText && widget->isVisible() && shown < widget->minimumSizeHint().width()) {
        texts += widget->objectName() + widget->property("text").toString() + QLatin1Char('\n');
      }
    }
    return texts.toStdString();
  }

  static void expectReadable(QWidget& shown) {
    EXPECT_EQ(cutOff(shown), "");
    EXPECT_EQ(tests::doubleLetters(tests::reachedByLetter(shown)), "");
  }
};

TEST(Labels, AreSpokenOfWithoutTheirLetters) {
  EXPECT_EQ(desktop::plainText(QLatin1String("RA&M && disks (MB)(&R)")),
            QLatin1String("RAM & disks (MB)"));
}

TEST_F(Languages, HaveRoomAndALetterForEachControl) {
  const QDir folder(QLatin1String(QUILLON_BUNDLE "/Contents/Resources"));
  const QStringList files = folder.entryList({QLatin1String("*.qm")});
  ASSERT_GE(files.size(), 4);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    QTranslator translator;
    ASSERT_TRUE(translator.load(folder.filePath(file)));
    QCoreApplication::installTranslator(&translator);
    open();
    window->completePages();
    for (int tab = 0; tab < tabs()->count(); ++tab) {
      tabs()->setCurrentIndex(tab);
      QTest::qWait(0);
      expectReadable(*window);
    }
    for (const char* const opening : {"openPreferences", "bitCreate"}) {
      tabs()->setCurrentIndex(0);
      click(opening);
      QTest::qWait(0);
      expectReadable(*QApplication::activeWindow());
      key(Qt::Key_Escape);
      QTest::qWait(0);
      activate(&*window);
    }
    for (const QMenu* const menu : window->findChildren<QMenu*>()) {
      EXPECT_EQ(tests::doubleLetters(tests::entriesOf(*menu)), "");
    }
  }
}

}  // namespace
