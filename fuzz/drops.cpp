// What can be done to the list of disk images: drops above all, with whatever is dropped.

#include <algorithm>
#include <set>

#include "fuzz/support.h"
#include "platform/text.h"
#include "tests/support/fake_host.h"
#include "volumes/volume_table.h"

namespace {

constexpr std::size_t fileCount = 8;

/// Files of 1 to 8 bytes: an entry's size tells whether it is still the one of its path.
struct Files {
  fuzz::Folder folder;
  Files() {
    for (std::size_t size = 1; size <= fileCount; ++size) {
      folder.write(std::to_string(size), std::string(size, 'x'));
    }
  }
};

class Session {
 public:
  explicit Session(const Files& files) : files_(files) { table_.wire(); }

  void act(std::uint8_t action, std::uint8_t number) {
    const std::size_t row = number % (model_.size() + 2);
    switch (action % 8) {
      case 0:
      case 1:
        add(number);
        break;
      case 2:
        remove(row);
        break;
      case 3:
        items_.push_back(std::to_string(row));
        break;
      case 4:
        drop(row);
        break;
      case 5:
        items_.push_back(std::string(1, static_cast<char>(number)) + std::to_string(row));
        break;
      case 6:
        table_.moveSelectionUp();
        takeOrder();
        break;
      default:
        table_.moveSelectionDown();
        takeOrder();
        break;
    }
    fuzz::check(sizes() == model_, "the order is that of the model");
  }

  void checkAll() {
    const volumes::VolumeList& list = table_.volumes();
    fuzz::check(list.volName() == list.volLocal(), "two lists of the same locations");
    fuzz::check(list.volType().size() == list.size(), "lists of the same length");
    for (std::size_t row = 0; row < list.size(); ++row) {
      fuzz::check(list.volName()[row].path().ends_with("/" + std::to_string(model_[row])) &&
                      list.volType()[row] == "Disk Image",
                  "an entry stays together");
      for (const std::size_t column : {0U, 1U, 2U, 3U}) {
        (void)table_.viewFor(column, row);
      }
    }
    const auto& selected = table_.tableView.selectedRows();
    fuzz::check(std::set(selected.begin(), selected.end()).size() == selected.size() &&
                    std::all_of(selected.begin(), selected.end(),
                                [&](std::size_t row) { return row < list.size(); }),
                "each selected row is there, once");
  }

 private:
  [[nodiscard]] std::vector<std::int64_t> sizes() const { return table_.volumes().volSize(); }

  // Of the same entries, whatever became of their order.
  void takeOrder() {
    const std::multiset<std::int64_t> before(model_.begin(), model_.end());
    model_ = sizes();
    fuzz::check(before == std::multiset<std::int64_t>(model_.begin(), model_.end()),
                "nothing is lost");
  }

  void add(std::uint8_t number) {
    const auto size = 1 + number % fileCount;
    panels_.answers.push_back(
        {platform::Location::fromPath(files_.folder.path(std::to_string(size)))});
    table_.browseFile.sendAction();
    model_.push_back(static_cast<std::int64_t>(size));
  }

  // The first entry of the same path goes.
  void remove(std::size_t row) {
    if (row < model_.size()) {
      table_.tableView.selectRows({row});
      model_.erase(std::find(model_.begin(), model_.end(), model_[row]));
    } else {
      table_.tableView.selectRows({});
    }
    table_.removeVol.sendAction();
  }

  // What a person can drag is rows in their order, each once; anything else must lose nothing.
  void drop(std::size_t row) {
    std::vector<std::size_t> rows;
    for (const std::string& item : items_) {
      const auto number = platform::parseInt64(item);
      if (number && *number >= 0) {
        rows.push_back(static_cast<std::size_t>(*number));
      }
    }
    const bool draggable = std::is_sorted(rows.begin(), rows.end()) &&
                           std::adjacent_find(rows.begin(), rows.end()) == rows.end() &&
                           (rows.empty() || rows.back() < model_.size());
    fuzz::check(table_.acceptDrop(items_, row), "a drop is accepted");
    items_.clear();
    if (!draggable) {
      takeOrder();
      return;
    }
    std::vector<std::int64_t> above, dropped, below;
    for (std::size_t index = 0; index < model_.size(); ++index) {
      const bool moves = std::count(rows.begin(), rows.end(), index) > 0;
      (moves ? dropped : index < row ? above : below).push_back(model_[index]);
    }
    model_ = std::move(above);
    model_.insert(model_.end(), dropped.begin(), dropped.end());
    model_.insert(model_.end(), below.begin(), below.end());
  }

  const Files& files_;
  fuzz::SwallowingOutput output_;
  tests::FakePanels panels_;
  volumes::VolumeTable table_{output_, panels_};
  std::vector<std::string> items_;
  std::vector<std::int64_t> model_;  // the sizes of the entries in their order
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Files files;
  Session session(files);
  for (std::size_t at = 0; at + 1 < size; at += 2) {
    session.act(data[at], data[at + 1]);
  }
  session.checkAll();
  return 0;
}
