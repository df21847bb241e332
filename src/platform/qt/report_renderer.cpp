#include "platform/qt/report_renderer.h"

#include <QPageSize>

#include "platform/qt/html_piece.h"
#include "platform/qt/html_text.h"
#include "platform/qt/layout_data.h"
#include "platform/qt/layout_reader.h"
#include "platform/qt/table_painter.h"
#include "platform/qt/text_measure.h"

namespace vorbano {

namespace {

/// What the pieces of a document point into.
struct Content {
    Layout layout;
    LayoutData data;
};

std::optional<QPageSize> pageSize(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const auto size = static_cast<QPageSize::PageSizeId>(id);
        if (size != QPageSize::Custom && QPageSize::key(size).compare(wanted, Qt::CaseInsensitive) == 0) {
            return QPageSize(size);
        }
    }
    return std::nullopt;
}

/// Turns the sections of a layout into the pieces of a document.
class Maker {
  public:
    Maker(const Content& content, double width, HtmlPiece::Style style)
        : content_(content), width_(width), style_(std::move(style)) {}

    Result<std::vector<ReportDocument::Item>> make() {
        for (const LayoutSection& section : content_.layout.sections) {
            const Result<> added = std::visit([this](const auto& one) { return add(one); }, section);
            if (!added) return added.error();
        }
        return std::move(items_);
    }

  private:
    void push(std::unique_ptr<DocumentPiece> piece, bool withPrevious = false) {
        items_.push_back({std::move(piece), withPrevious, breakBefore_});
        breakBefore_ = false;
    }

    Result<> add(const HtmlSection& section) {
        const auto html = htmlText(section, content_.data);
        if (!html) return html.error();
        push(std::make_unique<HtmlPiece>(QString::fromStdString(*html), style_, width_, section.together),
             section.withPrevious);
        return {};
    }

    Result<> add(const TableSection& section) {
        const auto when = BoundText::bind(section.when, content_.data, nullptr, section.origin);
        if (!when) return when.error();
        if (!section.when.parts.empty() && when->filled().empty()) return {};
        auto table = TablePiece::make(section, content_.data, style_.family, width_);
        if (!table) return table.error();
        push(std::move(*table));
        return {};
    }

    Result<> add(const SpaceSection& section) {
        // It hangs on what stands before it, so that no page begins with an empty stretch.
        push(std::make_unique<SpacePiece>(section.height * pxInMillimetre), true);
        return {};
    }

    Result<> add(const NewPageSection& /*section*/) {
        breakBefore_ = true;
        return {};
    }

    const Content& content_;
    double width_;
    HtmlPiece::Style style_;
    std::vector<ReportDocument::Item> items_;
    bool breakBefore_ = false;
};

}  // namespace

Result<std::unique_ptr<Document>> QtRenderer::render(std::string_view layout, std::string_view title) {
    auto made = document(layout, title);
    if (!made) return made.error();
    return std::unique_ptr<Document>(std::move(*made));
}

Result<std::unique_ptr<ReportDocument>> QtRenderer::document(std::string_view name, std::string_view title) {
    auto layout = readLayout(name, layouts_);
    if (!layout) return layout.error();
    auto data = LayoutData::run(*layout, database_);
    if (!data) return data.error();
    const auto content = std::make_shared<Content>(Content{std::move(*layout), std::move(*data)});

    const PageSetup& page = content->layout.page;
    const Origin origin{std::string(name), 1};
    const auto size = pageSize(page.size);
    if (!size) return layoutError(origin, "formato di pagina sconosciuto: " + page.size);
    const QPageLayout pageLayout(*size, page.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                 QMarginsF(page.left, page.top, page.right, page.bottom), QPageLayout::Millimeter);
    const QSizeF room = ReportDocument::contentSize(pageLayout);
    if (room.width() < 100 || room.height() < 100) return layoutError(origin, "margini troppo larghi per la pagina");

    const QString family = firstFamily(page.fonts);
    auto items =
        Maker(*content, room.width(), {family, page.textSize, QString::fromStdString(content->layout.style)}).make();
    if (!items) return items.error();
    const auto foot = BoundText::bind(page.foot, content->data, nullptr, origin);
    if (!foot) return foot.error();
    const std::string act = foot->filled();
    const std::string called = title.empty() ? (act.empty() ? std::string(name) : act) : std::string(title);
    return std::make_unique<ReportDocument>(
        ReportDocument::Setup{pageLayout, family, QString::fromStdString(called), act}, std::move(*items), content);
}

}  // namespace vorbano
