#include "desktop/search_places.h"

#include <QComboBox>

#include "desktop/lead_to.h"
#include "desktop/search_words.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

QStringList wordsOf(const SettingWidget& place) {
  const document::Key key = place.setting->explainedKey();
  QStringList words = searchWordsOf(key);
  if (const auto* const box = qobject_cast<QComboBox*>(place.widget)) {
    for (int choice = 0; choice < box->count(); ++choice) {
      words.append(box->itemText(choice));
    }
  }
  words.append(toQString(std::string(document::rowOf(key).text)).trimmed());
  return words;
}

}  // namespace

SearchIndex SearchPlaces::collect() const {
  SearchIndex index;
  addSettings(index);
  addImages(index);
  addScsi(index);
  addPreferences(index);
  return index;
}

QString SearchPlaces::tabName(const QWidget* widget) const {
  return plainText(window_.tabs.tabText(tabOf(window_.tabs, widget)));
}

// A setting that is disabled says what comes first.
void SearchPlaces::addSettings(SearchIndex& index) const {
  for (const SettingWidget& place : window_.settings) {
    const SettingWidget* const enabler = enablerOf(place, window_.settings);
    const QString tab = tabName(place.widget);
    index.add(
        {place.title,
         enabler == nullptr ? tab : tr("%1 (turn on \"%2\" first)").arg(tab, enabler->title),
         wordsOf(place),
         QCoreApplication::translate("Help", document::rowOf(place.setting->explainedKey()).help),
         [this, &place] { goTo(place); }});
  }
}

void SearchPlaces::goTo(const SettingWidget& place) const {
  const SettingWidget* const enabler = enablerOf(place, window_.settings);
  const SettingWidget& target = enabler != nullptr ? *enabler : place;
  leadTo(window_.tabs, target.widget);
  if (enabler != nullptr) {
    window_.help.tell(
        tr(R"("%1" is disabled. Turn on "%2" first.)").arg(place.title, target.title));
  }
}

void SearchPlaces::addImages(SearchIndex& index) const {
  VolumeView& images = window_.images;
  const QString list = tr("Disk images");
  index.add({list, tabName(&images), searchWordsOfImages(), {}, [this] {
               leadTo(window_.tabs, &window_.images);
             }});
  for (int row = 0; row < images.rows().rowCount(); ++row) {
    const QString path = toQString(images.rows().pathOf(row));
    const auto name = path.lastIndexOf(QLatin1Char('/')) + 1;
    index.add({path.mid(name), list, {path}, {}, [this, row] { goToImage(row); }});
  }
}

// The selection is what shows where it is.
void SearchPlaces::goToImage(int row) const {
  VolumeView& images = window_.images;
  window_.tabs.setCurrentIndex(tabOf(window_.tabs, &images));
  images.setFocus(Qt::ShortcutFocusReason);
  images.selectRow(row);
}

void SearchPlaces::addScsi(SearchIndex& index) const {
  if (tabOf(window_.tabs, &window_.scsi) >= 0) {
    index.add({tr("SCSI ID 0"), tabName(&window_.scsi), {}, {}, [this] {
                 leadTo(window_.tabs, &window_.scsi);
               }});
  }
}

void SearchPlaces::addPreferences(SearchIndex& index) const {
  struct Place {
    QString title;
    QString words;
    const char* name;
  };
  for (const auto& [title, words, name] :
       {Place{tr("Where Quillon is"), tr("location, path, emulator, Quillon.app"), "Quillon"},
        Place{tr("Quit after Start"), tr("exit, close, end"), "quitOnStart"},
        Place{tr("Show the SCSI tab"), tr("bus, devices"), "SCSItab"}}) {
    index.add({title, tr("Preferences window"), {words}, {}, [this, control = QLatin1String(name)] {
                 leadTo(window_.tabs, window_.openPreferences()->findChild<QWidget*>(control));
               }});
  }
}

}  // namespace desktop
