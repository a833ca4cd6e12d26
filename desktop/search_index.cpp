#include "desktop/search_index.h"

#include <algorithm>
#include <iterator>

namespace desktop {
namespace {

constexpr std::size_t mostHits = 50;

// How a word is found, the best way first.
enum class Fit { wholeText, wholeWord, beginning, middle };

struct Found {
  Fit fit;
  qsizetype at;
};

// Without case and accents, and as long as it was: a place in the one is a place in the other.
QString folded(const QString& text) {
  QString plain = text;
  for (QChar& letter : plain) {
    if (letter.unicode() > 0x7f && letter.script() == QChar::Script_Latin &&
        letter.decompositionTag() == QChar::Canonical) {
      letter = letter.decomposition().front();
    }
    letter = letter.toCaseFolded();
  }
  return plain;
}

QStringList wordsOf(const QString& text) {
  return folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool isInside(const QString& text, qsizetype before, qsizetype after) {
  const auto isLetter = [&](qsizetype at) {
    return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
  };
  return isLetter(before) && isLetter(after);
}

std::optional<Found> bestIn(const QString& text, const QString& word) {
  std::optional<Found> best;
  for (auto at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
    const auto end = at + word.size();
    const Fit fit = end - at == text.size()        ? Fit::wholeText
                    : isInside(text, at - 1, at)   ? Fit::middle
                    : isInside(text, end - 1, end) ? Fit::beginning
                                                   : Fit::wholeWord;
    if (!best || fit < best->fit) {
      best = {fit, at};
    }
  }
  return best;
}

// The part of a long text around a place in it.
QString excerpt(const QString& text, qsizetype at) {
  constexpr qsizetype before = 16;
  constexpr qsizetype most = 56;
  qsizetype from = at <= before ? 0 : text.indexOf(QLatin1Char(' '), at - before) + 1;
  from = std::min(from, at);
  const QString part = text.mid(from, most);
  const auto end = from + part.size() < text.size() ? part.lastIndexOf(QLatin1Char(' ')) : -1;
  constexpr QChar more(0x2026);
  return (from > 0 ? QString(more) : QString()) + (end > 0 ? part.left(end) + more : part);
}

}  // namespace

// Where a word is found in an entry.
struct SearchIndex::Rated {
  enum Field { title, words, help };

  int rank;  // less is better
  Field field = title;
  qsizetype word = 0;  // which one of `words`
  qsizetype at = 0;
};

void SearchIndex::add(SearchEntry entry) {
  Indexed indexed{{}, folded(entry.title), {}, folded(entry.help)};
  std::transform(entry.words.begin(), entry.words.end(), std::back_inserter(indexed.words), folded);
  indexed.entry = std::move(entry);
  entries_.push_back(std::move(indexed));
}

std::optional<SearchIndex::Rated> SearchIndex::rate(const Indexed& entry, const QString& word) {
  std::optional<Rated> best;
  const auto look = [&](const QString& text, Rated::Field field, qsizetype number = 0) {
    if (const auto found = bestIn(text, word)) {
      constexpr int behindAllOthers = 100;
      const int rank = found->fit == Fit::wholeText ? 0
                       : found->fit == Fit::middle  ? behindAllOthers + field
                                                    : 2 * field + static_cast<int>(found->fit);
      if (!best || rank < best->rank) {
        best = {rank, field, number, found->at};
      }
    }
  };
  look(entry.title, Rated::title);
  for (qsizetype number = 0; number < entry.words.size(); ++number) {
    look(entry.words[number], Rated::words, number);
  }
  look(entry.help, Rated::help);
  return best;
}

QString SearchIndex::textOf(const SearchEntry& entry, const Rated& rated) {
  switch (rated.field) {
    case Rated::words:
      return entry.words.at(rated.word);
    case Rated::help:
      return excerpt(entry.help, rated.at);
    case Rated::title:
      break;
  }
  return {};
}

std::vector<SearchIndex::Hit> SearchIndex::find(const QString& text) const {
  struct Candidate {
    std::size_t entry;
    int rank;
    Rated worst;  // what most needs to be shown
  };
  const QStringList words = wordsOf(text);
  std::vector<Candidate> candidates;
  for (std::size_t entry = 0; entry < entries_.size() && !words.empty(); ++entry) {
    Candidate candidate{entry, 0, {-1}};
    const bool hasAll = std::all_of(words.begin(), words.end(), [&](const QString& word) {
      const auto rated = rate(entries_[entry], word);
      if (rated) {
        candidate.rank += rated->rank;
        candidate.worst = rated->rank > candidate.worst.rank ? *rated : candidate.worst;
      }
      return rated.has_value();
    });
    // The words as they stand in a text are better than here and there.
    const auto asOne = hasAll && words.size() > 1
                           ? rate(entries_[entry], words.join(QLatin1Char(' ')))
                           : std::nullopt;
    if (asOne && asOne->rank < candidate.rank) {
      candidate.rank = asOne->rank;
      candidate.worst = *asOne;
    }
    if (hasAll) {
      candidates.push_back(candidate);
    }
  }
  std::stable_sort(
      candidates.begin(), candidates.end(),
      [](const Candidate& one, const Candidate& other) { return one.rank < other.rank; });
  candidates.resize(std::min(candidates.size(), mostHits));
  std::vector<Hit> hits;
  std::transform(candidates.begin(), candidates.end(), std::back_inserter(hits),
                 [this](const Candidate& candidate) {
                   return Hit{candidate.entry, textOf(at(candidate.entry), candidate.worst)};
                 });
  return hits;
}

std::vector<std::pair<qsizetype, qsizetype>> foundParts(const QString& text, const QString& words) {
  const QString searched = folded(text);
  std::vector<std::pair<qsizetype, qsizetype>> parts;
  for (const QString& word : wordsOf(words)) {
    if (const auto found = bestIn(searched, word)) {
      parts.emplace_back(found->at, word.size());
    }
  }
  return parts;
}

}  // namespace desktop
