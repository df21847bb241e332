#include "reports/rendiconto_layout.h"

#include <algorithm>
#include <array>

namespace vorbano {

namespace {

using enum RendicontoPath;

struct PathRule {
    std::string_view kind;
    RendicontoPath path;
};
constexpr std::array pathRules = {
    PathRule{"Provinciali", ProvSub},      PathRule{"Provinciali_Comunali", ProvSub},
    PathRule{"Comunali", ProvSub},         PathRule{"Politiche_Comunali", ProvSub},
    PathRule{"Regionali", ProvSub},        PathRule{"Politiche_Regionali", PolRegSub},
    PathRule{"Europee_Comunali", EuroCom}, PathRule{"Referendum_Comunali", EuroCom},
};

/// Stands for any date, and for any kind that comes so far.
constexpr std::string_view any{};
/// No kind is called so: it stands for every combination that begins with European elections.
constexpr std::string_view european{"Europee_*"};

struct LayoutRule {
    RendicontoPath path;
    std::string_view kind;
    std::string_view date;
    std::string_view layout;

    [[nodiscard]] bool holdsFor(RendicontoPath asked, const Election& election) const {
        if (path != asked || (date != any && date != election.date)) return false;
        if (kind == european) return europeanWithOthers(election.type);
        return kind == any || kind == election.type;
    }
};
/// Tried in this order. Several single days have a layout of their own. Where the choice of the path sends a kind
/// elsewhere, its line here is never reached: the tables of the four procedures are kept as the office has them.
constexpr std::array layoutRules = {
    LayoutRule{common, european, any, "rendripe.rpt"},
    LayoutRule{common, "Politiche_Comunali", any, "rendrip.rpt"},
    LayoutRule{common, "Provinciali_Comunali", any, "rendrip.rpt"},
    LayoutRule{common, any, any, "rendstamp.rpt"},

    LayoutRule{ProvSub, "Provinciali_Comunali", any, "rendprocom.rpt"},
    LayoutRule{ProvSub, "Comunali", "06-05-12", "rendcom.rpt"},
    LayoutRule{ProvSub, "Comunali", "14-05-23", "rendcomc19.rpt"},
    LayoutRule{ProvSub, "Comunali", any, "rendprovC.rpt"},
    LayoutRule{ProvSub, "Politiche_Comunali", any, "rendripp.rpt"},
    LayoutRule{ProvSub, "Politiche_Regionali", any, "rendripr.rpt"},
    LayoutRule{ProvSub, "Provinciali", any, "rendprov.rpt"},
    LayoutRule{ProvSub, "Regionali", "25-06-23", "rendregc19.rpt"},
    LayoutRule{ProvSub, "Regionali", any, "rendreg.rpt"},

    LayoutRule{PolRegSub, any, any, "rendripr.rpt"},

    LayoutRule{EuroCom, "Referendum_Comunali", any, "rendrippcong.rpt"},
    LayoutRule{EuroCom, "Europee_Comunali", any, "rendripe.rpt"},
    LayoutRule{EuroCom, "Politiche_Comunali", any, "rendrip.rpt"},
    LayoutRule{EuroCom, "Provinciali_Comunali", any, "rendrip.rpt"},
    LayoutRule{EuroCom, any, any, "rendstamp.rpt"},
};

}  // namespace

RendicontoPath rendicontoPath(std::string_view kind) {
    const auto* const found = std::ranges::find(pathRules, kind, &PathRule::kind);
    return found == pathRules.end() ? common : found->path;
}

std::optional<std::string_view> rendicontoLayout(RendicontoPath path, const Election& election) {
    const auto* const found =
        std::ranges::find_if(layoutRules, [&](const LayoutRule& rule) { return rule.holdsFor(path, election); });
    if (found == layoutRules.end()) return std::nullopt;
    return found->layout;
}

bool europeanWithOthers(std::string_view kind) {
    return kind.starts_with('E') && kind.find('_') != std::string_view::npos;
}

}  // namespace vorbano
