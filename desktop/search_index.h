#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace desktop {

/// Something that can be searched for.
struct SearchEntry {
  QString title;
  QString place;      // where it is: a tab, a window
  QStringList words;  // other words for it: its key, the choices it offers, synonyms
  QString help;
  std::function<void()> go;  // leads there
};

/// Finds entries by the words of a text. All words must be found in an entry; those at which words
/// begin come before those that words have in the middle, those in titles before those in helps.
class SearchIndex {
 public:
  struct Hit {
    std::size_t entry;
    QString where;  // the text that was hit; empty: the title tells it
  };

  void add(SearchEntry entry);

  /// The best ones, the best first.
  [[nodiscard]] std::vector<Hit> find(const QString& text) const;

  [[nodiscard]] const SearchEntry& at(std::size_t entry) const { return entries_.at(entry).entry; }

 private:
  struct Indexed {
    SearchEntry entry;
    QString title;  // these are folded
    QStringList words;
    QString help;
  };
  struct Rated;

  [[nodiscard]] static std::optional<Rated> rate(const Indexed& entry, const QString& word);
  [[nodiscard]] static QString textOf(const SearchEntry& entry, const Rated& rated);

  std::vector<Indexed> entries_;
};

/// Where in a text the words of another one are found best: each begins at, and is as long as.
std::vector<std::pair<qsizetype, qsizetype>> foundParts(const QString& text, const QString& words);

}  // namespace desktop
