#include "desktop/controls.h"

#include <QApplication>
#include <QCompleter>
#include <QEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>
#include <limits>
#include <utility>

#include "desktop/file_drop.h"
#include "desktop/icons.h"
#include "desktop/plain_text.h"
#include "desktop/status_line.h"
#include "desktop/stepper_box.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

class WheelGuard : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel) {
      return QObject::eventFilter(watched, event);
    }
    // An ignored event goes on to the parent widget, which scrolls; an accepted one would end here.
    event->ignore();
    return true;
  }
};

// Replaces the entries only where they differ: QComboBox closes its open list when they change.
void showItems(QComboBox* box, const std::vector<std::string>& items,
               QString (*text)(const std::string&)) {
  QStringList wanted;
  std::transform(items.begin(), items.end(), std::back_inserter(wanted), text);
  QStringList present;
  for (int index = 0; index < box->count(); ++index) {
    present.append(box->itemText(index));
  }
  if (present != wanted) {
    box->clear();
    box->addItems(wanted);
  }
}

// QComboBox makes a completer with two models for each line edit that has none, which takes nearly
// half of what the box takes.
void makeEditable(QComboBox* box, bool completes) {
  if (completes) {
    box->setEditable(true);
    // The default, InlineCompletion, would put an entry into the field that nobody typed.
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
  } else {
    QCompleter none;
    auto* const line = new QLineEdit(box);
    line->setCompleter(&none);
    box->setLineEdit(line);
    box->setCompleter(nullptr);
  }
}

// A field that cannot be typed into is as its surroundings are: in most styles it looks like any
// other. That is done anew when the desktop changes its colours.
class ReadOnlyLook : public QObject {
 public:
  explicit ReadOnlyLook(QLineEdit* field) : QObject(field), field_(field) {
    field->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::ReadOnlyChange || type == QEvent::PaletteChange) {
      show();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void show() {
    QPalette palette;  // of which nothing is set: all comes from the window
    if (field_->isReadOnly()) {
      palette.setBrush(QPalette::Base, QApplication::palette(field_).window());
    }
    const bool isSet = field_->testAttribute(Qt::WA_SetPalette);
    const bool isRight =
        isSet == field_->isReadOnly() && (!isSet || field_->palette().base() == palette.base());
    if (!isRight) {
      field_->setPalette(palette);
    }
  }

  QLineEdit* field_;
};

}  // namespace

void describe(QWidget* widget, const platform::Control& control, const QString& help) {
  widget->setObjectName(toQString(control.name()));
  widget->setToolTip(shortToolTip(help));
  widget->setWhatsThis(help);
  widget->setAccessibleDescription(help);
}

void guardWheel(QWidget* widget) {
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->installEventFilter(new WheelGuard(widget));
}

// The subscription lives as long as the window, and the widget may be deleted before it.
template <typename Show>
void Controls::attach(platform::Control& control, const QObject* widget, Show show) {
  views_.push_back(control.attach([alive = QPointer<const QObject>(widget), show] {
    if (alive) {
      show();
    }
  }));
}

PendingEdit* Controls::pendingEdit(QLineEdit* field, platform::TextField& control,
                                   PendingEdit::TextCallback typed,
                                   PendingEdit::TextCallback commit, PendingEdit::Commits commits) {
  return pendingEdits_
      .emplace_back(std::make_unique<PendingEdit>(field, control, edits_, std::move(typed),
                                                  std::move(commit), commits))
      .get();
}

template <typename ButtonWidget>
ButtonWidget* Controls::pressed(ButtonWidget* button, platform::Button& control,
                                const QString& help) {
  describe(button, control, help);
  attach(control, button, [button, &control] {
    button->setEnabled(control.isEnabled());
    if (!control.title().empty()) {
      button->setText(translatedItem(control.title()));
    }
  });
  QObject::connect(button, &ButtonWidget::clicked, &connections_, [this, button, &control] {
    if ((button->focusPolicy() & Qt::ClickFocus) != 0) {
      edits_.endEditing();
    }
    control.sendAction();
  });
  return button;
}

QPushButton* Controls::pushButton(platform::Button& control, const QString& text,
                                  const QString& help, const char* icon) {
  auto* const button = new QPushButton(text);
  if (icon != nullptr) {
    giveIcon(button, icon);
  }
  return pressed(button, control, help);
}

QToolButton* Controls::smallButton(platform::Button& control, const QString& text,
                                   const QString& help) {
  auto* const button = new QToolButton;
  button->setText(text);
  button->setFocusPolicy(Qt::StrongFocus);
  return pressed(button, control, help);
}

template <typename ButtonWidget>
ButtonWidget* Controls::checkable(platform::Button& control, const QString& text,
                                  const QString& help) {
  auto* const button = new ButtonWidget(text);
  describe(button, control, help);
  attach(control, button, [button, &control] {
    const QSignalBlocker quiet(button);
    button->setEnabled(control.isEnabled());
    button->setChecked(control.isOn());
  });
  const auto store = [this, &control](bool checked) {
    edits_.endEditing();
    control.edit([&] { control.setOn(checked); });
  };
  QObject::connect(button, &ButtonWidget::clicked, &connections_, store);
  // The action that Qt (6.4) offers to screen readers makes QAbstractButton emit toggled, but not
  // clicked. Queued, this comes after clicked, when the control has the state already. A radio
  // button goes off because another one goes on, which tells of both.
  QObject::connect(
      button, &ButtonWidget::toggled, &connections_,
      [button, store, &control] {
        const bool isOn = button->isChecked();
        if (isOn != control.isOn() && (isOn || !button->autoExclusive())) {
          store(isOn);
        }
      },
      Qt::QueuedConnection);
  return button;
}

QCheckBox* Controls::checkBox(platform::Button& control, const QString& text, const QString& help) {
  return checkable<QCheckBox>(control, text, help);
}

QRadioButton* Controls::radioButton(platform::Button& control, const QString& text,
                                    const QString& help) {
  return checkable<QRadioButton>(control, text, help);
}

QAction* Controls::menuEntry(platform::Button& control, const QString& text, QObject* parent) {
  auto* const entry = new QAction(text, parent);
  entry->setObjectName(toQString(control.name()));
  entry->setCheckable(true);
  attach(control, entry, [entry, &control] {
    entry->setEnabled(control.isEnabled());
    entry->setChecked(control.isOn());
  });
  QObject::connect(entry, &QAction::triggered, &connections_, [this, &control] {
    edits_.endEditing();
    control.sendAction();
  });
  return entry;
}

QLineEdit* Controls::lineEdit(platform::TextField& control, const QString& help,
                              PendingEdit::Commits commits) {
  auto* const field = new QLineEdit;
  tie(control, help, commits, field);
  return field;
}

// The outlet is the field in the box, and has its name.
QComboBox* Controls::lineEditWithChoices(platform::TextField& control, const QString& help,
                                         const QStringList& choices) {
  auto* const box = new QComboBox;
  box->setObjectName(toQString(control.name()) + QLatin1Char('s'));
  box->setToolTip(shortToolTip(help));
  guardWheel(box);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setCompleter(nullptr);
  box->addItems(choices);
  box->setCurrentIndex(-1);
  tie(control, help, PendingEdit::Commits::whenNew, box->lineEdit());
  return box;
}

void Controls::tie(platform::TextField& control, const QString& help, PendingEdit::Commits commits,
                   QLineEdit* field) {
  describe(field, control, help);
  field->setMaxLength(std::numeric_limits<int>::max());
  new ReadOnlyLook(field);
  const auto store = [&control](const QString& text) { control.setStringValue(fromQString(text)); };
  PendingEdit* const pending = pendingEdit(
      field, control,
      [store, &control](const QString& text) { control.setFromView([&] { store(text); }); },
      [store, &control](const QString& text) { control.edit([&] { store(text); }); }, commits);
  attach(control, field, [field, pending, &control] {
    field->setEnabled(control.isEnabled());
    field->setReadOnly(!control.isEditable());
    const QString text = toQString(control.stringValue());
    if (field->text() != text) {
      field->setText(text);
    }
    pending->settle();
  });
}

QLineEdit* Controls::pathField(platform::TextField& control, const QString& help) {
  QLineEdit* const field = lineEdit(control, help);
  takeDroppedFiles(field, [edit = QPointer(pendingEdits_.back().get())] { edit->endEditing(); });
  return field;
}

QComboBox* Controls::comboBox(platform::ComboBox& control, const QString& help) {
  auto* const box = new QComboBox;
  describe(box, control, help);
  guardWheel(box);
  makeEditable(box, control.completes());
  box->setInsertPolicy(QComboBox::NoInsert);
  box->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
  box->setMinimumContentsLength(12);
  const auto show = [box, &control] {
    const QSignalBlocker quiet(box);
    box->setEnabled(control.isEnabled());
    showItems(box, control.items(), toQString);
    const QString text = toQString(control.stringValue());
    const auto selected = control.indexOfSelectedItem();
    // When the focus leaves, QComboBox selects the entry with the text of the field and emits
    // activated, unless that entry is the current one.
    box->setCurrentIndex(selected ? static_cast<int>(*selected) : box->findText(text));
    box->setEditText(text);
  };
  const auto store = [&control](const QString& text) { control.enterText(fromQString(text)); };
  PendingEdit* const pending = pendingEdit(
      box->lineEdit(), control,
      [store, &control](const QString& text) { control.setFromView([&] { store(text); }); },
      [store, show, &control](const QString& text) {
        control.edit([&] { store(text); });
        show();
      });
  attach(control, box, [show, pending] {
    show();
    pending->settle();
  });
  QObject::connect(box, &QComboBox::activated, &connections_, [box, pending, &control](int index) {
    // QComboBox (6.4) emits activated also for a typed text that equals an entry.
    if (pending->isTyped(box->itemText(index))) {
      return;
    }
    pending->settle();
    control.edit([&] { control.selectItem(static_cast<std::size_t>(index)); });
  });
  return box;
}

QComboBox* Controls::popUpButton(platform::PopUpButton& control, const QString& help) {
  auto* const box = new QComboBox;
  describe(box, control, help);
  guardWheel(box);
  attach(control, box, [box, &control] {
    const QSignalBlocker quiet(box);
    box->setEnabled(control.isEnabled());
    showItems(box, control.items(), translatedItem);
    const auto selected = control.indexOfSelectedItem();
    box->setCurrentIndex(selected ? static_cast<int>(*selected) : -1);
  });
  QObject::connect(box, &QComboBox::activated, &connections_, [this, &control](int index) {
    edits_.endEditing();
    control.edit([&] { control.selectItem(static_cast<std::size_t>(index)); });
  });
  return box;
}

QWidget* Controls::stepper(platform::Stepper& control, platform::TextField& field,
                           const QString& help) {
  auto* const box = new StepperBox(control, field);
  describe(box, control, help);
  describe(box->field(), field, help);
  guardWheel(box);
  attach(control, box, [box] { box->showState(); });
  attach(field, box, [box] { box->showState(); });
  return box;
}

QLabel* Controls::statusLine(platform::TextField& control) {
  auto* const line = new StatusLine;
  describe(line, control, {});
  attach(control, line,
         [line, &control] { line->show(toQString(control.stringValue()), control.textColor()); });
  return line;
}

QProgressBar* Controls::busyIndicator(platform::ProgressIndicator& control) {
  auto* const bar = new QProgressBar;
  describe(bar, control, {});
  bar->setAccessibleName(desktop::tr("Activity"));
  bar->setTextVisible(false);
  bar->setFixedWidth(4 * bar->fontMetrics().lineSpacing());
  attach(control, bar, [bar, &control] {
    // With minimum and maximum 0, QProgressBar shows a moving bar.
    bar->setRange(0, control.isAnimating() ? 0 : 1);
    bar->setValue(0);
  });
  return bar;
}

}  // namespace desktop
