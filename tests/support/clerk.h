#pragma once

// What a clerk sees of a screen and does at it, for tests: a gesture that the screen refuses fails the test.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/operator.h"

namespace vorbano::test {

/// A clerk at the screen that the test has in front.
class Clerk {
  public:
    virtual ~Clerk() = default;

    // What the clerk sees.
    Control& control(std::string_view name) {
        Control* found = front().find(name);
        if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
        return *found;
    }
    std::string text(std::string_view name) { return control(name).shownText(); }
    bool visible(std::string_view name) { return control(name).isVisible(); }
    bool enabled(std::string_view name) { return control(name).isEnabled(); }
    /// Enabled, unlocked and on show; of a menu entry, that it can be chosen.
    bool operable(std::string_view name) {
        Control& found = control(name);
        if (found.kind() == Kind::menuEntry) return dynamic_cast<MenuEntry&>(found).canBeChosen();
        return found.isOperable();
    }
    bool ticked(std::string_view name) { return dynamic_cast<CheckBox&>(control(name)).checked(); }
    std::string focused() {
        const Control* found = front().focused();
        return found == nullptr ? "nothing" : found->name();
    }
    std::string cell(std::string_view grid, int row, int column) {
        return dynamic_cast<Grid&>(control(grid)).cell(row, column);
    }

    // What the clerk does.
    Operator clerk() { return Operator(front()); }
    void type(std::string_view name, std::string_view words) {
        EXPECT_EQ(clerk().type(control(name), words), Refusal::none) << name;
    }
    void enter(std::string_view name) { EXPECT_EQ(clerk().enter(control(name)), Refusal::none) << name; }
    void leave() { clerk().leave(); }
    void click(std::string_view name) { EXPECT_EQ(clerk().click(control(name)), Refusal::none) << name; }
    void tick(std::string_view name, bool on = true) {
        EXPECT_EQ(clerk().tick(control(name), on), Refusal::none) << name;
    }
    void choose(std::string_view name, std::string_view item) {
        EXPECT_EQ(clerk().choose(control(name), item), Refusal::none) << name << " " << item;
    }
    void chooseIndex(std::string_view name, int index) {
        EXPECT_EQ(clerk().chooseIndex(control(name), index), Refusal::none) << name;
    }
    void pick(std::string_view grid, int row, int column) {
        EXPECT_EQ(clerk().pick(control(grid), row, column), Refusal::none) << grid << " " << row << " " << column;
    }
    void press(std::string_view name) { EXPECT_EQ(clerk().press(control(name)), Refusal::none) << name; }
    void move(std::string_view name) { EXPECT_EQ(clerk().move(control(name)), Refusal::none) << name; }
    void turn(std::string_view name, int page) {
        EXPECT_EQ(clerk().turn(control(name), page), Refusal::none) << name << " " << page;
    }
    void menu(std::string_view name) { EXPECT_EQ(clerk().menu(control(name)), Refusal::none) << name; }

  private:
    virtual Form& front() = 0;
};

}  // namespace vorbano::test
