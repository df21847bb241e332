// What a designed window lacks is told by name.

#include "window_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using vorbano::Button;
using vorbano::Form;
using vorbano::Frame;
using vorbano::HiddenLabel;
using vorbano::TextBox;

namespace {

TEST(MissingWidgets, ADesignedWindowWithAllItsControlsLacksNothing) {
    frmProva screen;
    EXPECT_THAT(vorbano::missingWidgets(screen.form), IsEmpty());
}

TEST(MissingWidgets, AControlWithoutAWidgetIsTold) {
    frmProva screen;
    const TextBox more(screen.form, "txtManca");
    const HiddenLabel flag(screen.form, "lblSpia");
    EXPECT_THAT(vorbano::missingWidgets(screen.form), ElementsAre("txtManca has no widget"));
}

TEST(MissingWidgets, AWidgetThatCannotShowItsControlIsTold) {
    Form form("frmProva", "Prova");
    const Button field(form, "txtData", "Data");
    EXPECT_THAT(vorbano::missingWidgets(form), Contains("txtData is shown by a QLineEdit"));
}

TEST(MissingWidgets, AFieldWithoutAControlIsTold) {
    Form form("frmProva", "Prova");
    const TextBox field(form, "txtData");
    const auto missing = vorbano::missingWidgets(form);
    for (const char* name : {"txtTotale", "Combo1", "Check1", "Option2", "List1", "MSFlexGrid1", "SSTab1", "cmdEsci"}) {
        EXPECT_THAT(missing, Contains(std::string(name) + " has no control"));
    }
    EXPECT_THAT(missing, testing::Not(Contains("txtData has no control")));
    EXPECT_THAT(missing, testing::Not(Contains("lblTitolo has no control")));
}

TEST(MissingWidgets, ABarThatLooksAtNothingIsTold) {
    Form form("frmProva", "Prova");
    const TextBox field(form, "txtData");
    EXPECT_THAT(vorbano::missingWidgets(form), Contains("a bar looks at \"txtOre\", which is no label or text box"));
}

TEST(MissingWidgets, AFormWithoutADesignedWindowGetsAPlainOne) {
    Form form("frmSenza", "Senza");
    Frame panel(form, "Frame1", "Dati");
    TextBox inside(panel, "txtDentro");
    vorbano::TabPanel tabs(form, "SSTab1");
    vorbano::TabPage third(tabs, 2);
    const Button button(third, "cmdOk", "OK");
    const vorbano::FormWindow window(form);
    EXPECT_THAT(window.missingWidgets(), IsEmpty());
    ASSERT_NE(window.widgetOf(inside), nullptr);
    EXPECT_EQ(window.widgetOf(inside)->parentWidget(), window.widgetOf(panel));
    inside.text = "12";
    EXPECT_NE(window.widgetOf(button), nullptr);
}

}  // namespace
