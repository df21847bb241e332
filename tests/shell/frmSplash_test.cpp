// The window with name and version.

#include "shell/frmSplash.h"

#include "platform/operator.h"
#include "platform/scripted_desktop.h"

namespace vorbano::test {
namespace {

class Splash : public ::testing::Test {
  protected:
    Splash() { desktop.showBeside(splash.form); }
    ScriptedDesktop desktop;
    frmSplash splash;
};

TEST_F(Splash, SaysNameAndVersion) {
    EXPECT_EQ(splash.lblVersion.text(), "Versione 3.9.6\n2024");
    EXPECT_EQ(splash.lblProductName.text(), "Gestione dei Rendiconti Elettorali");
    EXPECT_EQ(splash.lblAggiornamento.text(), "AGGIORNAMENTO 2024");
}

TEST_F(Splash, ClosesItselfAfterFiveSeconds) {
    EXPECT_TRUE(splash.Timer1.enabled());
    EXPECT_EQ(splash.Timer1.milliseconds(), 5000);
    EXPECT_TRUE(splash.form.isOpen());
    splash.Timer1.fired.fire();
    EXPECT_FALSE(splash.form.isOpen());
}

TEST_F(Splash, ClosesOnAPress) {
    EXPECT_EQ(Operator(splash.form).press(splash.Frame1), Refusal::none);
    EXPECT_FALSE(splash.form.isOpen());
}

TEST_F(Splash, ATimerThatFiresLateDoesNoHarm) {
    splash.Unload();
    splash.Timer1.fired.fire();
    EXPECT_FALSE(splash.form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
