#pragma once

// The control model: what a screen consists of, without any toolkit. A screen is a struct of a Form and of controls
// declared in it, in the order of work (which is the order of Tab):
//
//     struct frmElimina {
//         Form form{"frmElimina", "Vorbano"};
//         Frame Frame1{form, "Frame1", "Periodi"};
//         TextBox txtDataEle{Frame1, "txtDataEle"};
//         Button cmdRicerca{form, "cmdRicerca", "&Ricerca"};
//
// A property is read with a call and assigned with `=`: `if (txtDataEle.text().empty()) cmdRicerca.enabled = false;`

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event.h"

namespace vorbano {

class Control;
class Form;

enum class Kind : std::uint8_t {
    textBox,
    label,
    button,
    checkBox,
    option,
    comboBox,
    listBox,
    grid,
    frame,
    tabPanel,
    menuEntry,
    timer
};

/// Which property of a control changed; tells the window which part to draw anew.
enum class Aspect : std::uint8_t { text, enabled, visible, locked, checked, items, selection, cells, tone, interval };

/// A colour that means something to the clerk. The window knows the colours.
enum class Tone : std::uint8_t { plain, done, active, wrong, oldTariffs, newTariffs };

/// A value of a control. An assignment that changes it tells the window and the event procedures, whoever made it, the
/// program or the operator; one that does not change it is silent.
template <class Value>
class Property {
  public:
    Property(Control& owner, Aspect aspect, Value value = {})
        : owner_(owner), aspect_(aspect), value_(std::move(value)) {}
    Property(const Property&) = delete;
    inline Property& operator=(Value value);
    Property& operator=(const Property& other) { return *this = other.value_; }
    const Value& operator()() const { return value_; }

  private:
    Control& owner_;
    Aspect aspect_;
    Value value_;
};

/// What controls can be declared in: a form, a frame, a page of a tab panel.
class Container {
  public:
    Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    virtual ~Container() = default;
    [[nodiscard]] virtual Form& form() = 0;
    /// What stands in it can be seen / can be used.
    [[nodiscard]] virtual bool showsContent() const = 0;
    [[nodiscard]] virtual bool enablesContent() const = 0;
};

class Control {
  public:
    Property<bool> enabled{*this, Aspect::enabled, true};
    Property<bool> visible{*this, Aspect::visible, true};
    Event gotFocus;
    Event lostFocus;

    Control(Container& parent, Kind kind, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] Form& form() const { return form_; }
    [[nodiscard]] Container& parent() const { return parent_; }

    /// It and everything around it is visible / enabled.
    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] bool isEnabled() const;
    /// The clerk can act on it now: visible, enabled and not locked.
    [[nodiscard]] bool isOperable() const { return isVisible() && isEnabled() && !isLocked(); }
    [[nodiscard]] virtual bool isLocked() const { return false; }
    /// Tab and pointer can put the focus on it now.
    [[nodiscard]] bool takesFocus() const;
    /// A control that only carries a flag between procedures has no widget.
    [[nodiscard]] bool hasWidget() const { return hasWidget_; }

    /// What it shows as text: a field's text, a caption.
    [[nodiscard]] virtual std::string shownText() const { return {}; }

  protected:
    void withoutWidget() { hasWidget_ = false; }
    /// Called after the window was told; fires the events that belong to the aspect.
    virtual void changed(Aspect aspect) { (void)aspect; }

  private:
    template <class Value>
    friend class Property;
    void tell(Aspect aspect);

    Form& form_;
    Container& parent_;
    Kind kind_;
    std::string name_;
    bool hasWidget_ = true;
};

template <class Value>
Property<Value>& Property<Value>::operator=(Value value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.tell(aspect_);
    return *this;
}

/// One line of text that the clerk types or reads.
class TextBox : public Control {
  public:
    Property<std::string> text{*this, Aspect::text};
    /// Legible, not changeable by the operator.
    Property<bool> locked{*this, Aspect::locked, false};
    Property<Tone> tone{*this, Aspect::tone, Tone::plain};
    /// From this byte of the text to its end it is marked, and the next key takes the place of what is marked; -1 is
    /// nothing. Set by the program after it has completed what the operator typed; a change of the text ends it.
    Property<int> markedFrom{*this, Aspect::selection, -1};
    /// The most characters that can be typed; 0 is no limit. The program itself may assign more.
    int maxLength = 0;
    /// After every change of the text, key by key.
    Event change;

    TextBox(Container& parent, std::string name, int length = 0);
    /// The field holds `words` after a key of the operator. A key that writes again what was marked is a change too.
    void typed(std::string words);
    [[nodiscard]] bool isLocked() const override { return locked(); }
    [[nodiscard]] std::string shownText() const override { return text(); }

  protected:
    void changed(Aspect aspect) override;
};

class Label : public Control {
  public:
    Property<std::string> text;
    Property<Tone> tone{*this, Aspect::tone, Tone::plain};
    Event change;

    Label(Container& parent, std::string name, std::string caption = {});
    [[nodiscard]] std::string shownText() const override { return text(); }

  protected:
    void changed(Aspect aspect) override;
};

/// A label that is never on show: it carries a flag or a figure between the procedures of a screen.
class HiddenLabel : public Label {
  public:
    HiddenLabel(Container& parent, std::string name, std::string value = {});
};

class Button : public Control {
  public:
    Property<std::string> text;
    Property<Tone> tone{*this, Aspect::tone, Tone::plain};
    Event clicked;

    Button(Container& parent, std::string name, std::string caption);
    [[nodiscard]] std::string shownText() const override { return text(); }
};

class CheckBox : public Control {
  public:
    Property<std::string> text;
    Property<bool> checked{*this, Aspect::checked, false};
    /// After every change of `checked`, also one made by the program.
    Event clicked;

    CheckBox(Container& parent, std::string name, std::string caption);
    [[nodiscard]] std::string shownText() const override { return text(); }

  protected:
    void changed(Aspect aspect) override;
};

/// One of several in the same container that exclude each other.
class Option : public Control {
  public:
    Property<std::string> text;
    Property<bool> checked{*this, Aspect::checked, false};
    /// After it became the chosen one.
    Event clicked;

    Option(Container& parent, std::string name, std::string caption);
    [[nodiscard]] std::string shownText() const override { return text(); }

  protected:
    void changed(Aspect aspect) override;
};

using Lines = std::vector<std::string>;

/// A list of which at most one line is chosen.
class ItemControl : public Control {
  public:
    Property<Lines> items{*this, Aspect::items};
    /// Index of the chosen line from 0; -1 when none is.
    Property<int> selection{*this, Aspect::selection, -1};
    /// A line was chosen, by the operator or by `choose`; also when it was the chosen one already.
    Event clicked;

    using Control::Control;
    void add(std::string line);
    void removeItem(int index);
    /// Empties the list and the choice, silently for `clicked`.
    virtual void clear();
    /// Chooses a line; an index that is not there does nothing.
    virtual void choose(int index);
    /// Index of the first line whose trimmed text is `text` (trimmed); -1 when there is none.
    [[nodiscard]] int find(std::string_view text) const;
};

/// A closed list of which the chosen line is shown as text.
class ComboBox : public ItemControl {
  public:
    Property<std::string> text{*this, Aspect::text};

    ComboBox(Container& parent, std::string name, Lines lines = {});
    void clear() override;
    void choose(int index) override;
    [[nodiscard]] std::string shownText() const override { return text(); }
};

class ListBox : public ItemControl {
  public:
    ListBox(Container& parent, std::string name);
    [[nodiscard]] std::string shownText() const override;
};

/// Rows and columns of text; row 0 is the heading.
class Grid : public Control {
  public:
    Property<std::vector<Lines>> cells{*this, Aspect::cells};
    Property<Tone> tone{*this, Aspect::tone, Tone::plain};
    /// A cell was picked: `row`, `column`.
    Event picked;
    int row = 0;
    int column = 0;

    Grid(Container& parent, std::string name, Lines heading);
    /// Rows without the heading.
    [[nodiscard]] int rows() const { return static_cast<int>(cells().size()) - 1; }
    /// Text of a cell; empty when it is not there.
    [[nodiscard]] std::string cell(int row, int column) const;
    void setRows(std::vector<Lines> rows);
    void clear() { setRows({}); }

  private:
    Lines heading_;
};

class Frame : public Control, public Container {
  public:
    Property<std::string> text;
    Property<Tone> tone{*this, Aspect::tone, Tone::plain};
    Event pressed;
    Event moved;

    Frame(Container& parent, std::string name, std::string caption = {});
    [[nodiscard]] Form& form() override { return Control::form(); }
    [[nodiscard]] bool showsContent() const override { return isVisible(); }
    [[nodiscard]] bool enablesContent() const override { return isEnabled(); }
    [[nodiscard]] std::string shownText() const override { return text(); }
};

class TabPanel;

/// A page of a tab panel; what stands on it shows while the page is open.
class TabPage : public Container {
  public:
    TabPage(TabPanel& panel, int index) : panel_(panel), index_(index) {}
    [[nodiscard]] Form& form() override;
    [[nodiscard]] bool showsContent() const override;
    [[nodiscard]] bool enablesContent() const override;
    [[nodiscard]] TabPanel& panel() const { return panel_; }
    [[nodiscard]] int index() const { return index_; }

  private:
    TabPanel& panel_;
    int index_;
};

class TabPanel : public Control {
  public:
    /// The open page, from 0.
    Property<int> page{*this, Aspect::selection, 0};
    /// Another page was opened.
    Event turned;

    TabPanel(Container& parent, std::string name);

  protected:
    void changed(Aspect aspect) override;
};

/// An entry of the menu bar of a form, or, below another entry, of its submenu.
class MenuEntry : public Control {
  public:
    Property<std::string> text;
    Event clicked;

    MenuEntry(Form& form, std::string name, std::string caption);
    MenuEntry(MenuEntry& above, std::string name, std::string caption);
    [[nodiscard]] MenuEntry* above() const { return above_; }
    /// It and all entries above it are visible and enabled.
    [[nodiscard]] bool canBeChosen() const;
    [[nodiscard]] std::string shownText() const override { return text(); }

  private:
    MenuEntry* above_ = nullptr;
};

/// Fires again and again while enabled.
class Timer : public Control {
  public:
    Property<int> milliseconds;
    Event fired;

    Timer(Form& form, std::string name, int milliseconds);
};

}  // namespace vorbano
