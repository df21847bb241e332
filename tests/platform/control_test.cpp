// Properties and events of single controls, without any window.

#include "platform/control.h"

#include <gmock/gmock.h>

#include "platform/form.h"
#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

struct Controls : testing::Test {
    std::vector<std::string> log;
    Form form{"frmX", "Prova"};
};

TEST_F(Controls, AnAssignmentThatChangesNothingIsSilent) {
    TextBox field(form, "txtA");
    field.text = std::string("x");
    Watcher watcher;
    form.watchedBy(&watcher);
    note(field.change, log, "change");
    field.text = std::string("x");
    field.enabled = true;
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(watcher.told, IsEmpty());
}

TEST_F(Controls, AnAssignmentOfTheProgramFiresChange) {
    TextBox field(form, "txtA");
    Label label(form, "Label1", "uno");
    note(field.change, log, "txtA");
    note(label.change, log, "Label1");
    field.text = std::string("1");
    label.text = std::string("due");
    EXPECT_THAT(log, ElementsAre("txtA", "Label1"));
}

TEST_F(Controls, OnlyTheTextOfAFieldIsAChange) {
    TextBox field(form, "txtA");
    note(field.change, log, "change");
    field.enabled = false;
    field.visible = false;
    field.locked = true;
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(Controls, TheWindowIsToldBeforeTheProcedures) {
    TextBox field(form, "txtA");
    Watcher watcher;
    form.watchedBy(&watcher);
    std::size_t toldBefore = 0;
    field.change.calls([&] { toldBefore = watcher.told.size(); });
    field.text = std::string("1");
    EXPECT_EQ(toldBefore, 1U);
}

TEST_F(Controls, ProceduresRunInTheOrderInWhichTheyWereHung) {
    Button button(form, "cmdA", "A");
    note(button.clicked, log, "first");
    note(button.clicked, log, "second");
    button.clicked.fire();
    EXPECT_THAT(log, ElementsAre("first", "second"));
}

TEST_F(Controls, APropertyIsAssignedFromAnotherControl) {
    TextBox source(form, "txtA");
    TextBox target(form, "txtB");
    source.text = std::string("12");
    target.text = source.text;
    EXPECT_EQ(target.text(), "12");
}

TEST_F(Controls, ACheckBoxFiresAtEveryChangeAlsoOfTheProgram) {
    CheckBox box(form, "Check1", "Sì");
    note(box.clicked, log, "clicked");
    box.checked = true;
    box.checked = true;
    box.checked = false;
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(Controls, OptionsOfOneContainerExcludeEachOther) {
    Frame panel(form, "Frame1");
    Option one(panel, "Option1", "1");
    Option two(panel, "Option2", "2");
    Option elsewhere(form, "Option3", "3");
    note(one.clicked, log, "one");
    note(two.clicked, log, "two");
    elsewhere.checked = true;
    one.checked = true;
    two.checked = true;
    EXPECT_FALSE(one.checked());
    EXPECT_TRUE(two.checked());
    EXPECT_TRUE(elsewhere.checked());
    // The one that was put out does not fire.
    EXPECT_THAT(log, ElementsAre("one", "two"));
}

TEST_F(Controls, WhatStandsInAPanelIsVisibleAndEnabledWithIt) {
    Frame outer(form, "Frame1");
    Frame inner(outer, "Frame2");
    const TextBox field(inner, "txtA");
    EXPECT_TRUE(field.isOperable());
    outer.visible = false;
    EXPECT_FALSE(field.isVisible());
    EXPECT_TRUE(field.visible());
    outer.visible = true;
    inner.enabled = false;
    EXPECT_FALSE(field.isEnabled());
    EXPECT_TRUE(field.isVisible());
}

TEST_F(Controls, WhatStandsOnAPageShowsWhileThePageIsOpen) {
    TabPanel panel(form, "SSTab1");
    TabPage first(panel, 0);
    TabPage second(panel, 1);
    const TextBox a(first, "txtA");
    const TextBox b(second, "txtB");
    EXPECT_TRUE(a.isVisible());
    EXPECT_FALSE(b.isVisible());
    note(panel.turned, log, "turned");
    panel.page = 1;
    EXPECT_FALSE(a.isVisible());
    EXPECT_TRUE(b.isVisible());
    EXPECT_THAT(log, ElementsAre("turned"));
    panel.enabled = false;
    EXPECT_FALSE(b.isEnabled());
}

TEST_F(Controls, AMenuEntryCanBeChosenWhenAllAboveItCan) {
    MenuEntry file(form, "mnuFile", "&File");
    MenuEntry tariffs(file, "mnuTariffe", "Tariffe");
    MenuEntry pay(tariffs, "mnuStrao", "Compenso");
    EXPECT_TRUE(pay.canBeChosen());
    file.enabled = false;
    EXPECT_FALSE(pay.canBeChosen());
    file.enabled = true;
    tariffs.visible = false;
    EXPECT_FALSE(pay.canBeChosen());
}

TEST_F(Controls, OnlyWhatTheClerkCanUseTakesTheFocus) {
    TextBox field(form, "txtA");
    const Label label(form, "Label1", "x");
    const Frame panel(form, "Frame1");
    const HiddenLabel flag(form, "Label2");
    const Timer timer(form, "Timer1", 10);
    const MenuEntry entry(form, "mnuA", "A");
    EXPECT_TRUE(field.takesFocus());
    EXPECT_FALSE(label.takesFocus());
    EXPECT_FALSE(panel.takesFocus());
    EXPECT_FALSE(flag.takesFocus());
    EXPECT_FALSE(timer.takesFocus());
    EXPECT_FALSE(entry.takesFocus());
    field.locked = true;
    EXPECT_FALSE(field.takesFocus());
}

TEST_F(Controls, AFlagHasNoWidget) {
    const HiddenLabel flag(form, "Label28", "N");
    const Label label(form, "Label1", "x");
    EXPECT_FALSE(flag.hasWidget());
    EXPECT_EQ(flag.text(), "N");
    EXPECT_TRUE(label.hasWidget());
}

TEST_F(Controls, ATimerIsOffUntilItIsEnabled) {
    const Timer timer(form, "Timer1", 10000);
    EXPECT_FALSE(timer.enabled());
    EXPECT_EQ(timer.milliseconds(), 10000);
}

TEST_F(Controls, TheFormFindsItsControlsByTheirExactName) {
    const TextBox field(form, "txtIndennità");
    EXPECT_EQ(form.find("txtIndennità"), &field);
    EXPECT_EQ(form.find("txtindennità"), nullptr);
}

TEST_F(Controls, TheWindowIsToldOfAnotherCaption) {
    Watcher watcher;
    form.watchedBy(&watcher);
    form.setCaption("Prova");
    form.setCaption("Altra");
    EXPECT_THAT(watcher.told, ElementsAre("caption"));
}

}  // namespace
