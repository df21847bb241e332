#pragma once

// How to make the .ui of a screen (vorbano_form(frmX.ui) in the folder's CMakeLists.txt hands it in):
//
// * Class and object name of the top widget are the form's name (frmX), its class is QWidget. Its layout, and every
//   layout in it, is a real one; nothing has a fixed place or size. 1366 x 768 must be enough.
// * For each control a widget of the same object name, accents included:
//     TextBox QLineEdit, Label QLabel, Button QPushButton, CheckBox QCheckBox, Option QRadioButton, ComboBox QComboBox,
//     ListBox QListWidget, Grid QTableWidget, Frame QGroupBox (with title) or QFrame, TabPanel QTabWidget.
//   Menu entries and timers need nothing. A HiddenLabel has no widget. Captions that never change are QLabels of any
//   name without a control.
// * The form's captions are shown. On buttons, boxes, options and panels the .ui's own words stay as long as the form
//   gives none, and where they only add or move a mnemonic ("&Salva" for "Salva"). A Label always shows the form's
//   text.
// * Every field has a label that is its buddy, with a mnemonic where there is room for one; a label that belongs to no
//   control hides and shows with its buddy. In tables of fields, where a label each would be noise, set accessibleName.
// * The order of Tab is the order in which the controls are declared in the form, not that of the .ui.
// * Dynamic properties (stdset="0"):
//     QLineEdit    amount = true              figures, right-aligned
//     QPushButton  iconName = save, search, print, add, close, confirm, cancel, calculate
//     QTableWidget stretchColumn = 2          the column, from 0, that takes what room is left; without it the last
//     QProgressBar valueFrom, maximumFrom     names of the labels or text boxes whose numbers it follows
//     QLabel       role = title, hint, figure a heading of the window, small grey words, a number that stands out
//   The tone of a control comes as property `tone` to the style sheet; no .ui sets colours, fonts or style sheets.

#include <QDialog>
#include <QHash>
#include <QSize>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/operator.h"
#include "platform/qt/widget_binding.h"

class QAction;
class QFocusEvent;
class QLabel;
class QMouseEvent;
class QScrollArea;
class QTimer;

namespace vorbano {

/// What the window manager adds around a window, in logical pixels.
inline constexpr QSize windowFrame(16, 40);

class WindowBars;
class WindowMenu;

/// Shows any form: builds the window from the `.ui` of the form's name, finds for each control the widget of the same
/// object name, and keeps both in step. The form is the truth: the window hands every gesture to an Operator and then
/// follows what the form says. There is no other code per screen.
class FormWindow : public QDialog, public FormWatcher {
    Q_OBJECT
  public:
    /// How a window stands on the desk: the first one, above another one, or beside them without a frame.
    enum class Place { first, above, beside };

    /// `above` is the window that it opens above; without one it is the first.
    explicit FormWindow(Form& form, QWidget* above = nullptr);
    FormWindow(Form& form, QWidget* parent, Place place);
    ~FormWindow() override;

    [[nodiscard]] Form& form() const { return form_; }
    /// The widget of a control, nullptr when it has none (a hidden label, a menu entry, a timer).
    [[nodiscard]] QWidget* widgetOf(const Control& control) const;
    /// The entry of the menu bar, nullptr when the control is no menu entry.
    [[nodiscard]] QAction* actionOf(const Control& control) const;
    /// nullptr when the control is no timer.
    [[nodiscard]] QTimer* timerOf(const Control& control) const;
    /// Where the pointer is pressed to choose a line of a list box, pick a cell of a grid (line 0 is the heading) or
    /// open a page of a tab panel; scrolled into view. No widget when it is not there.
    [[nodiscard]] Spot spotOf(const Control& control, int line, int column = 0);

    /// Controls that can be shown and have no widget, or one that cannot show them; input widgets that no control
    /// stands for; names in properties that do not exist. Empty when all is well.
    [[nodiscard]] std::vector<std::string> missingWidgets() const;
    /// Names of controls that take the focus and that a screen reader could not name.
    [[nodiscard]] std::vector<std::string> namelessWidgets() const;

    /// Lines and cells are brought to the widgets a little later, once for many changes; this brings them now.
    void settle();

    void controlChanged(Control& control, Aspect aspect) override;
    void focusMoved() override;
    void captionChanged() override;
    void closed() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void reject() override;

  signals:
    /// The form has closed.
    void shut();
    /// Lines or cells of some control are to be brought.
    void contentChanged();
    /// The toolkit has moved the focus by itself.
    void focusWandered();

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// The order of the form holds, so the toolkit's own never moves the focus.
    bool focusNextPrevChild(bool next) override;

  private:
    void build();
    void layOut();
    void grow();
    void bind();
    void bind(Control& control, QWidget& widget);
    void bindCaptions();
    void bindTimers();
    void followFocus(bool select);
    void bring(Control& control);
    void bringAspect(Control& control, Aspect aspect);
    void bringStanding(Control& control);
    void bringAll();
    void bringTimer(const Control& control);
    void bringCaptions(const Control& control);
    void giveName(const Control& control);
    void act(Control& control, const Gesture& gesture);
    void leave(Control& control, bool forward);
    void closeByOperator();

    [[nodiscard]] Control* ownerOf(const QObject* widget) const { return owners_.value(widget, nullptr); }
    bool mouseEvent(Control& control, QObject* part, QEvent& event);
    bool mousePressed(Control& control, QObject* part, const QMouseEvent& event);
    bool framePointed(Frame& frame, const QMouseEvent& event);
    void pointerLeft(const QWidget& panel);
    void pointerCame(QPoint at);
    bool keyPressed(Control& control, const QKeyEvent& event);
    bool shortcut(Control& control, QObject* widget, QEvent& event);
    static void focusWent(QObject* watched, const QFocusEvent& event);
    void focusCame(Control& control, const QFocusEvent& event);
    void answerFocus();

    Form& form_;
    Operator operator_;
    Place place_;
    bool attached_ = true;
    std::map<const Control*, QWidget*> widgets_;
    std::map<const Control*, QTimer*> timers_;
    /// Every widget, or part of one, whose events belong to a control.
    QHash<const QObject*, Control*> owners_;
    std::unique_ptr<WindowMenu> menu_;
    std::unique_ptr<WindowBars> bars_;
    QScrollArea* scroll_ = nullptr;
    QWidget* content_ = nullptr;
    /// Controls whose lines or cells have changed and are not yet brought.
    std::set<Control*> pending_;
    /// A label beside a field, and the control of that field.
    struct Caption {
        QLabel* label;
        Control* named;
        bool givesName;  ///< the field has no other name for a screen reader
        bool ofForm;     ///< it is a control itself, which shows and hides on its own
    };
    std::vector<Caption> captions_;
    /// The press was dropped, and so is the rest of it up to the release.
    QObject* dropped_ = nullptr;
    /// How often another window has come above this one and taken its events.
    unsigned timesBlocked_ = 0;
    bool following_ = false;
    /// The panel that the pointer has come to. It counts as moved over once, until the pointer has been outside it: who
    /// goes from field to field in a panel, or closes a message box above it, has not come back to it.
    const QWidget* pointedAt_ = nullptr;
    /// Where the toolkit put the focus by itself.
    struct Wandered {
        Control* control = nullptr;
        const QWidget* place = nullptr;
        bool byClerk = false;
    };
    Wandered wandered_;
    /// Above 0 while a change of the program is brought to the widgets.
    int changing_ = 0;
};

/// What the window of a form lacks (FormWindow::missingWidgets and namelessWidgets), for the tests of every screen.
[[nodiscard]] std::vector<std::string> missingWidgets(Form& form);

}  // namespace vorbano
