#include <fontconfig/fontconfig.h>

#include "platform/qt/typefaces.h"

namespace vorbano {

namespace {

/// Left to itself, the library would also read every rule that it could have been given, to be able to describe them;
/// that takes as long as the rules in force, which are all that is read here.
void readRulesInForce() {
    FcConfig* rules = FcConfigCreate();
    if (rules == nullptr) return;
    if (FcConfigParseAndLoad(rules, nullptr, FcTrue) && FcConfigBuildFonts(rules)) FcConfigSetCurrent(rules);
    FcConfigDestroy(rules);
}

}  // namespace

std::future<void> readTypefaces() { return std::async(std::launch::async, readRulesInForce); }

}  // namespace vorbano
