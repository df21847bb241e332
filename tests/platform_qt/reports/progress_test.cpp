#include <QApplication>
#include <QBuffer>
#include <QPdfWriter>
#include <QProgressDialog>
#include <QPushButton>

#include "platform/qt/progress_window.h"
#include "platform/qt/qt_printer.h"
#include "report_desk.h"

namespace vorbano::test {

using std::chrono::milliseconds;

namespace {

/// The window on show, nullptr when none is.
QProgressDialog* shownWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QProgressDialog*>(widget);
        if (dialog != nullptr && dialog->isVisible()) return dialog;
    }
    return nullptr;
}

/// Stops the job when it is told of a certain step; notes all.
class NotedWatch : public JobWatch {
  public:
    explicit NotedWatch(int stopAt = 0) : stopAt_(stopAt) {}
    bool goesOn(int done, int all) override {
        steps.emplace_back(done, all);
        return done != stopAt_;
    }
    void cannotStopNow() override { pointOfNoReturn = static_cast<int>(steps.size()); }

    std::vector<std::pair<int, int>> steps;
    int pointOfNoReturn = -1;

  private:
    int stopAt_;
};

}  // namespace

class ProgressTest : public ::testing::Test {
  protected:
    milliseconds now_{500};
    ProgressWindow window_{nullptr, "COMPONENTI DEI SEGGI", [this] { return now_; }};
};

TEST_F(ProgressTest, ShowsNothingBeforeASecondIsOver) {
    EXPECT_TRUE(window_.goesOn(1, 100));
    now_ += milliseconds(999);
    EXPECT_TRUE(window_.goesOn(2, 100));
    EXPECT_EQ(shownWindow(), nullptr);
}

TEST_F(ProgressTest, ShowsABarAndAButtonFromThenOn) {
    now_ += milliseconds(1000);
    EXPECT_TRUE(window_.goesOn(40, 100));
    QProgressDialog* shown = shownWindow();
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->windowTitle(), "Stampa in corso");
    EXPECT_EQ(shown->labelText(), "COMPONENTI DEI SEGGI");
    EXPECT_EQ(shown->value(), 40);
    EXPECT_EQ(shown->maximum(), 100);
    EXPECT_TRUE(shown->isModal());
    auto* cancel = shown->findChild<QPushButton*>("cmdAnnulla");
    ASSERT_NE(cancel, nullptr);
    EXPECT_EQ(cancel->text().remove('&'), "Annulla");
    now_ += milliseconds(39);
    EXPECT_TRUE(window_.goesOn(41, 100));
    EXPECT_EQ(shown->value(), 40) << "it is not drawn for every step";
    now_ += milliseconds(1);
    EXPECT_TRUE(window_.goesOn(42, 100));
    EXPECT_EQ(shown->value(), 42);
}

TEST_F(ProgressTest, StopsWhenTheClerkSaysSo) {
    now_ += milliseconds(1000);
    ASSERT_TRUE(window_.goesOn(1, 100));
    shownWindow()->findChild<QPushButton*>("cmdAnnulla")->click();
    EXPECT_FALSE(window_.goesOn(2, 100));
    now_ += milliseconds(100);
    EXPECT_FALSE(window_.goesOn(3, 100));
    EXPECT_EQ(shownWindow(), nullptr) << "it does not come again";
}

TEST_F(ProgressTest, ClosingTheWindowIsStoppingToo) {
    now_ += milliseconds(1000);
    ASSERT_TRUE(window_.goesOn(1, 100));
    shownWindow()->close();
    EXPECT_FALSE(window_.goesOn(2, 100));
}

TEST_F(ProgressTest, CannotBeStoppedWhenItIsTooLate) {
    now_ += milliseconds(1000);
    ASSERT_TRUE(window_.goesOn(1, 100));
    window_.cannotStopNow();
    QProgressDialog* shown = shownWindow();
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(shown->findChild<QPushButton*>("cmdAnnulla")->isEnabled());
    shown->close();
    EXPECT_TRUE(window_.goesOn(2, 100));
}

TEST_F(ProgressTest, GoesWithTheJob) {
    {
        ProgressWindow other(nullptr, "altro", [this] { return now_; });
        now_ += milliseconds(1000);
        EXPECT_TRUE(other.goesOn(1, 2));
        EXPECT_NE(shownWindow(), nullptr);
    }
    EXPECT_EQ(shownWindow(), nullptr);
}

class WatchedJob : public ReportDesk {
  protected:
    void SetUp() override {
        auto made = render(
            "[page]\nfoot = "
            "Atto\n[html]\n<p>uno</p>\n[new-page]\n[html]\n<p>due</p>\n[new-page]\n[html]\n<p>tre</p>\n");
        ASSERT_THAT(made, Succeeds());
        document_ = std::move(*made);
    }
    [[nodiscard]] std::string place(const char* name) const { return (folder_.path() / name).string(); }

    std::unique_ptr<ReportDocument> document_;
};

TEST_F(WatchedJob, IsToldOfEveryPage) {
    NotedWatch watch;
    const auto written = document_->writePdf(place("atto.pdf"), watch);
    ASSERT_THAT(written, Succeeds());
    EXPECT_TRUE(*written);
    EXPECT_THAT(watch.steps, ::testing::ElementsAre(std::pair(1, 3), std::pair(2, 3), std::pair(3, 3)));
}

TEST_F(WatchedJob, StoppedAtAnyPageLeavesNoFile) {
    for (int page = 1; page <= 3; ++page) {
        NotedWatch watch(page);
        const auto written = document_->writePdf(place("atto.pdf"), watch);
        ASSERT_THAT(written, Succeeds());
        EXPECT_FALSE(*written);
        EXPECT_FALSE(std::filesystem::exists(place("atto.pdf"))) << page;
    }
}

TEST_F(WatchedJob, StoppedKeepsTheFileThatWasThere) {
    ASSERT_THAT(document_->savePdf(place("atto.pdf")), Succeeds());
    const auto before = std::filesystem::file_size(place("atto.pdf"));
    NotedWatch watch(2);
    ASSERT_THAT(document_->writePdf(place("atto.pdf"), watch), Succeeds());
    EXPECT_EQ(std::filesystem::file_size(place("atto.pdf")), before);
}

class WatchedPrinter : public WatchedJob {
  protected:
    /// Prints on a printer that is a file in memory, stopped at a step of the job (0: not at all).
    Result<> print(int stopAt, bool hasPrinter = true) {
        QtPrinter printer([] { return nullptr; },
                          [this](QWidget*, const QString&) { return QString::fromStdString(place("a.pdf")); },
                          [hasPrinter] { return hasPrinter; },
                          [this](const QString& title) {
                              opened_.push_back(title.toStdString());
                              paper_.open(QIODevice::WriteOnly);
                              return OpenedPrinter{std::make_unique<QPdfWriter>(&paper_), "Ufficio"};
                          },
                          [this, stopAt](QWidget*, const QString& words) {
                              told_ = words.toStdString();
                              auto watch = std::make_unique<Forwarding>(watch_);
                              watch_ = NotedWatch(stopAt);
                              return watch;
                          });
        return printer.print(*document_, "Atto");
    }
    /// The watch belongs to the job; what it noted is looked at afterwards.
    class Forwarding : public JobWatch {
      public:
        explicit Forwarding(NotedWatch& to) : to_(to) {}
        bool goesOn(int done, int all) override { return to_.goesOn(done, all); }
        void cannotStopNow() override { to_.cannotStopNow(); }

      private:
        NotedWatch& to_;
    };
    NotedWatch watch_;
    std::string told_;
    std::vector<std::string> opened_;
    QBuffer paper_;
};

TEST_F(WatchedPrinter, PaintsForNobodyAndThenForThePrinter) {
    EXPECT_THAT(print(0), Succeeds());
    EXPECT_EQ(told_, "Atto");
    EXPECT_THAT(opened_, ::testing::ElementsAre("Atto"));
    EXPECT_EQ(watch_.steps.size(), 6U);
    EXPECT_EQ(watch_.steps.front(), std::pair(1, 6));
    EXPECT_EQ(watch_.steps.back(), std::pair(6, 6));
    EXPECT_EQ(watch_.pointOfNoReturn, 3);
    EXPECT_GT(paper_.size(), 0);
}

TEST_F(WatchedPrinter, StoppedGivesThePrinterNothing) {
    for (int step = 1; step <= 3; ++step) {
        EXPECT_THAT(print(step), Succeeds()) << "the clerk wanted it so";
        EXPECT_TRUE(opened_.empty()) << step;
    }
}

TEST_F(WatchedPrinter, WithoutAPrinterTheFileIsWatched) {
    EXPECT_THAT(print(2, false), Succeeds());
    EXPECT_EQ(watch_.steps.size(), 2U);
    EXPECT_FALSE(std::filesystem::exists(place("a.pdf")));
    EXPECT_THAT(print(0, false), Succeeds());
    EXPECT_TRUE(std::filesystem::exists(place("a.pdf")));
    EXPECT_TRUE(opened_.empty());
}

}  // namespace vorbano::test
