// What was read early must be what the system would have read itself, or windows would look different by chance.

#include "platform/qt/typefaces.h"

#include <fontconfig/fontconfig.h>
#include <gmock/gmock.h>

#include <memory>
#include <set>
#include <string>

namespace {

using Rules = std::unique_ptr<FcConfig, decltype(&FcConfigDestroy)>;
using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

std::string text(const FcPattern* pattern, const char* property) {
    FcChar8* value = nullptr;
    if (FcPatternGetString(pattern, property, 0, &value) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(value);
}

std::set<std::string> typefaces(FcConfig* rules) {
    std::set<std::string> files;
    const FcFontSet* all = FcConfigGetFonts(rules, FcSetSystem);
    for (int at = 0; all != nullptr && at < all->nfont; ++at) files.insert(text(all->fonts[at], FC_FILE));
    return files;
}

/// File, hinting and smoothing of the typeface that stands for `wish`.
std::string chosen(FcConfig* rules, const char* wish) {
    const Pattern pattern(FcNameParse(reinterpret_cast<const FcChar8*>(wish)), &FcPatternDestroy);
    FcConfigSubstitute(rules, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    const Pattern match(FcFontMatch(rules, pattern.get(), &result), &FcPatternDestroy);
    if (match == nullptr) return "none";
    const std::unique_ptr<FcChar8, decltype(&FcStrFree)> words(FcNameUnparse(match.get()), &FcStrFree);
    return reinterpret_cast<const char*>(words.get());
}

TEST(Typefaces, AreThoseThatTheSystemWouldHaveRead) {
    FcConfig* const before = FcConfigReference(nullptr);
    vorbano::readTypefaces().wait();
    const Rules early(FcConfigReference(nullptr), &FcConfigDestroy);
    EXPECT_NE(early.get(), before);
    const Rules usual(FcInitLoadConfigAndFonts(), &FcConfigDestroy);
    EXPECT_FALSE(typefaces(early.get()).empty());
    EXPECT_EQ(typefaces(early.get()), typefaces(usual.get()));
    for (const char* wish : {"Sans", "Serif", "monospace", "Liberation Sans:bold", "Arial", "DejaVu Sans:size=15"}) {
        EXPECT_EQ(chosen(early.get(), wish), chosen(usual.get(), wish)) << wish;
    }
    FcConfigDestroy(before);
}

}  // namespace
