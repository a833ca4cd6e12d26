// The windows in each language that they speak.

#include <QAbstractButton>
#include <QDir>
#include <QMenuBar>
#include <QTranslator>
#include <set>

#include "desktop/setting_widgets.h"
#include "desktop/sizes.h"
#include "tests/desktop/window_fixture.h"

namespace {

class Languages : public tests::WindowTest {
 protected:
  /// Each widget that is seen must have room for its text, and a letter of its own, if it has one.
  static void expectReadable(const QWidget& shown) {
    QStringList texts;
    for (const QWidget* const widget : shown.findChildren<QWidget*>()) {
      const bool hasText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                           qobject_cast<const QComboBox*>(widget) != nullptr ||
                           qobject_cast<const QLabel*>(widget) != nullptr;
      if (hasText && widget->isVisible()) {
        texts += widget->property("text").toString();
        EXPECT_GE(widget->visibleRegion().boundingRect().width(), widget->minimumSizeHint().width())
            << "for " << texts.last().toStdString();
      }
    }
    if (const auto* const bar = shown.findChild<QMenuBar*>()) {
      texts += entriesOf(*bar);
    }
    expectOwnLetters(texts);
  }

  static void expectOwnLetters(const QStringList& texts) {
    std::set<QString> letters;
    for (const QString& text : texts) {
      const QString letter = QKeySequence::mnemonic(text).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << text.toStdString();
    }
  }

  static QStringList entriesOf(const QWidget& menu) {
    QStringList texts;
    for (const QAction* const entry : menu.actions()) {
      texts += entry->text();
    }
    return texts;
  }
};

TEST(Labels, AreSpokenOfWithoutTheirLetters) {
  EXPECT_EQ(desktop::plainText(QLatin1String("RA&M && disks (MB)(&R)")),
            QLatin1String("RAM & disks (MB)"));
}

TEST(Sizes, HaveTheDecimalPointOfThePerson) {
  QLocale::setDefault(QLocale(QLocale::German));
  EXPECT_EQ(desktop::translatedSize("3.1 MB"), QLatin1String("3,1 MB"));
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(desktop::translatedSize("3.1 MB"), QLatin1String("3.1 MB"));
}

TEST_F(Languages, HaveRoomAndALetterForEachControl) {
  const QDir folder(QLatin1String(QUILLON_BUNDLE "/Contents/Resources"));
  const QStringList files = folder.entryList({QLatin1String("*.qm")});
  ASSERT_GE(files.size(), 4);
  for (const QString& file : files + QStringList("English")) {
    SCOPED_TRACE(file.toStdString());
    const bool isEnglish = file == QLatin1String("English");
    QTranslator translator;
    EXPECT_NE(translator.load(folder.filePath(file)), isEnglish);
    QCoreApplication::installTranslator(&translator);
    open("frameskip Dynamic\n");
    const auto* const rates = find<QComboBox>("refreshRate");
    EXPECT_EQ(rates->itemText(0) == QLatin1String("Dynamic"), isEnglish);
    EXPECT_EQ(rates->currentText() == QLatin1String("Dynamic (from the file)"), isEnglish);
    for (int tab = 0; tab < tabs()->count(); ++tab) {
      tabs()->setCurrentIndex(tab);
      QTest::qWait(0);
      expectReadable(*window);
    }
    expectReadable(*openBy("openPreferences"));
    leaveBy("Escape");
    expectReadable(*openBy("bitCreate"));
    EXPECT_EQ(text("createImage") == "Create", isEnglish);
    leaveBy("Escape");
    enter("screenType");
    press("Down");
    const QWidget* const changes = openBy("changesButton");
    expectReadable(*changes);
    for (const QLabel* const label : changes->findChildren<QLabel*>()) {
      EXPECT_TRUE(isEnglish || !label->text().contains(QLatin1String("Full screen")));
    }
    leaveBy("Escape");
    for (const QMenu* const menu : window->findChildren<QMenu*>()) {
      expectOwnLetters(entriesOf(*menu));
    }
  }
}

}  // namespace
