#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/subscription.h"

namespace platform {

/// A control of a window: state plus an action, with a view that shows it or without.
///
/// The program changes the state through the setters, which tell the view. A view passes on what a
/// person did through `edit`, which runs the action and tells the view only what the action
/// changed.
class Control {
 public:
  /// `name` is what code, tests and tools call this control.
  explicit Control(std::string name) : name_(std::move(name)) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  /// Runs after a change made by the user is in the state.
  std::function<void()> action;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled) { set(enabled_, enabled); }

  /// Has `show` bring the view in line with the state, now and after every change of it, for as
  /// long as the result lives. There is at most one view: an earlier one is told no more.
  Subscription attach(std::function<void()> show) {
    Subscription shown = show_.subscribe(std::move(show));
    changed();
    return shown;
  }

  /// Puts what the user is doing into the state. The view shows it already and is not told.
  template <typename Write>
  void setFromView(Write write) {
    const Callback view = std::exchange(show_, {});
    write();
    show_ = view;
  }

  /// Puts what the user did into the state, then runs the action.
  template <typename Write>
  void edit(Write write) {
    setFromView(write);
    sendAction();
  }

  void sendAction() const {
    if (action) {
      action();
    }
  }

 protected:
  void changed() const { show_(); }

  template <typename Value>
  void set(Value& field, Value value) {
    if (field != value) {
      field = std::move(value);
      changed();
    }
  }

 private:
  std::string name_;
  bool enabled_ = true;
  Callback show_;
};

enum class State : std::int8_t { mixed = -1, off = 0, on = 1 };

/// A push button, a check box, a radio button or a menu entry.
class Button : public Control {
 public:
  explicit Button(std::string name, std::string title = {})
      : Control(std::move(name)), title_(std::move(title)) {}

  [[nodiscard]] const std::string& title() const { return title_; }
  void setTitle(std::string title) { set(title_, std::move(title)); }
  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] bool isOn() const { return state_ == State::on; }
  void setState(State state) { set(state_, state); }
  void setOn(bool on) { setState(on ? State::on : State::off); }

 private:
  std::string title_;
  State state_ = State::off;
};

/// A list of texts of which one is chosen, or none.
class Choice {
 public:
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  [[nodiscard]] std::optional<std::size_t> indexOfSelectedItem() const { return selected_; }

 protected:
  std::vector<std::string> items_;
  std::optional<std::size_t> selected_;
};

/// A button that shows one of its entries.
class PopUpButton : public Control, public Choice {
 public:
  using Control::Control;

  void addItems(const std::vector<std::string>& titles);
  void selectItem(std::size_t index) { set(selected_, std::optional(index)); }
};

/// The colours that a text field takes on to say how things went.
enum class TextColor : std::uint8_t { standard, gray, red, blue };

class TextField : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& stringValue() const { return text_; }
  void setStringValue(std::string text) { set(text_, std::move(text)); }
  [[nodiscard]] bool isEditable() const { return editable_; }
  void setEditable(bool editable) { set(editable_, editable); }
  [[nodiscard]] TextColor textColor() const { return color_; }
  void setTextColor(TextColor color) { set(color_, color); }

 private:
  std::string text_;
  bool editable_ = true;
  TextColor color_ = TextColor::standard;
};

/// A text field with a list of texts to choose from. No entry is selected when the user typed,
/// be it a text that stands in the list.
class ComboBox : public TextField, public Choice {
 public:
  using TextField::TextField;

  void addItem(std::string item);
  void addItems(const std::vector<std::string>& items);
  void removeAllItems();

  /// Selects an entry and takes its text.
  void selectItem(std::size_t index);

  /// Selects the first entry with that text; returns whether there is one.
  bool selectItemWithText(std::string_view text);

  /// Takes a text that was typed: no entry is selected.
  void enterText(std::string text);

  /// Whether entries are offered to complete what is being typed.
  [[nodiscard]] bool completes() const { return completes_; }
  void setCompletes(bool completes) { set(completes_, completes); }

 private:
  bool completes_ = false;
};

/// Two arrows that count up and down.
class Stepper : public Control {
 public:
  struct Range {
    std::int32_t minimum;
    std::int32_t maximum;
    std::int32_t increment = 1;
  };

  Stepper(std::string name, Range range)
      : Control(std::move(name)), range_(range), value_(range.minimum) {}

  [[nodiscard]] const Range& range() const { return range_; }
  [[nodiscard]] std::int32_t integerValue() const { return value_; }
  /// Whether an arrow, down if `steps` is negative, does anything.
  [[nodiscard]] bool canStep(int steps) const { return wasOutside_ || valueAfter(steps) != value_; }
  /// Takes the number, or the end of the range that is next to it.
  void setIntegerValue(std::int32_t value) {
    const std::int32_t end = std::clamp(value, range_.minimum, range_.maximum);
    wasOutside_ = end != value;
    set(value_, end);
  }

  /// The number that so many presses of an arrow lead to, down if negative. From a number outside
  /// the range, as a file may have it, any press leads to the end next to it.
  [[nodiscard]] std::int32_t valueAfter(int steps) const;

 private:
  Range range_;
  std::int32_t value_;
  bool wasOutside_ = false;
};

/// Shows that something is going on.
class ProgressIndicator : public Control {
 public:
  using Control::Control;

  /// Without effect: Qt's progress bar animates from the event loop, and has no thread to choose.
  void setUsesThreadedAnimation(bool /*threaded*/) {}
  void startAnimation() { set(animating_, true); }
  void stopAnimation() { set(animating_, false); }
  [[nodiscard]] bool isAnimating() const { return animating_; }

 private:
  bool animating_ = false;
};

}  // namespace platform
