#include "storage/memory_file_system.h"

#include <algorithm>
#include <utility>

#include "storage/codepage.h"

namespace vorbano {

namespace {

using Room = std::shared_ptr<std::optional<std::uint64_t>>;

/// What a file holds; open files share it.
struct Content {
    explicit Content(Room room) : room_(std::move(room)) {}
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    ~Content() { giveBack(written.size()); }

    /// Makes it `size` bytes long; false when the disk has no room for it.
    bool resize(std::size_t size) {
        if (size > written.size()) {
            const std::uint64_t growth = size - written.size();
            if (*room_ && **room_ < growth) return false;
            if (*room_) **room_ -= growth;
        } else {
            giveBack(written.size() - size);
        }
        written.resize(size);
        return true;
    }

    std::vector<std::byte> written;
    std::vector<std::byte> flushed;
    bool readOnly = false;

  private:
    void giveBack(std::uint64_t bytes) {
        if (*room_) **room_ += bytes;
    }
    Room room_;
};

class MemoryFile : public File {
  public:
    MemoryFile(std::shared_ptr<Content> content, bool mayWrite, std::string path)
        : content_(std::move(content)), mayWrite_(mayWrite), path_(std::move(path)) {}

    Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) override {
        const auto& bytes = content_->written;
        if (offset >= bytes.size()) return std::size_t{0};
        const std::size_t count = std::min(into.size(), bytes.size() - static_cast<std::size_t>(offset));
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
        return count;
    }
    Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) override {
        if (!mayWrite_ || content_->readOnly) return Error{Failure::refused, path_};
        if (bytes.empty()) return {};
        const auto from = static_cast<std::size_t>(offset);
        const std::size_t end = from + bytes.size();
        if (content_->written.size() < end && !content_->resize(end)) return Error{Failure::diskFull, path_};
        std::ranges::copy(bytes, content_->written.begin() + static_cast<std::ptrdiff_t>(from));
        return {};
    }
    Result<std::uint64_t> size() override { return std::uint64_t{content_->written.size()}; }
    Result<> flush() override {
        content_->flushed = content_->written;
        return {};
    }

  private:
    std::shared_ptr<Content> content_;
    bool mayWrite_;
    std::string path_;
};

Error refusal(Failure kind, std::string_view path) { return {kind, std::string(path)}; }

}  // namespace

struct MemoryFileSystem::Node {
    std::string name;
    std::shared_ptr<Content> content;  ///< none for a folder
    bool readOnly = false;
    /// By name in capitals, so that names are the same without regard to case, and in order.
    std::map<std::string, std::unique_ptr<Node>> children;

    [[nodiscard]] bool isFolder() const { return content == nullptr; }
    /// Besides this node only open files hold the content.
    [[nodiscard]] bool isOpen() const { return content.use_count() > 1; }
    [[nodiscard]] Node* child(std::string_view childName) const {
        const auto found = children.find(upperCase(childName));
        return found == children.end() ? nullptr : found->second.get();
    }
    Node* add(std::string_view childName, std::shared_ptr<Content> childContent) {
        auto& place = children[upperCase(childName)];
        place = std::make_unique<Node>();
        place->name = childName;
        place->content = std::move(childContent);
        return place.get();
    }
    void forEach(const auto& visit) {
        visit(*this);
        for (auto& [key, node] : children) node->forEach(visit);
    }
};

MemoryFileSystem::MemoryFileSystem()
    : room_(std::make_shared<std::optional<std::uint64_t>>()), root_(std::make_unique<Node>()) {}
MemoryFileSystem::~MemoryFileSystem() = default;

Result<MemoryFileSystem::Node*> MemoryFileSystem::find(std::string_view path) {
    const auto names = splitPath(path);
    if (!names) return names.error();
    Node* node = root_.get();
    for (const std::string& name : *names) {
        node = node->child(name);
        if (node == nullptr) return refusal(Failure::notFound, path);
    }
    return node;
}

Result<MemoryFileSystem::Node*> MemoryFileSystem::parentOf(std::string_view path, std::string& name) {
    const auto names = splitPath(path);
    if (!names) return names.error();
    if (names->empty()) return refusal(Failure::badName, path);
    Node* node = root_.get();
    for (std::size_t at = 0; at + 1 < names->size() && node != nullptr; ++at) node = node->child((*names)[at]);
    if (node == nullptr || !node->isFolder()) return refusal(Failure::missingFolder, path);
    name = names->back();
    return node;
}

Result<std::unique_ptr<File>> MemoryFileSystem::open(std::string_view path) {
    std::string name;
    auto parent = parentOf(path, name);
    if (!parent) return parent.error();
    Node* node = (*parent)->child(name);
    if (node == nullptr) {
        if ((*parent)->readOnly) return refusal(Failure::refused, path);
        node = (*parent)->add(name, std::make_shared<Content>(room_));
    }
    if (node->isFolder() || node->content->readOnly) return refusal(Failure::refused, path);
    return std::unique_ptr<File>(std::make_unique<MemoryFile>(node->content, true, std::string(path)));
}

Result<std::unique_ptr<File>> MemoryFileSystem::openExisting(std::string_view path) {
    auto node = find(path);
    if (!node) return node.error();
    if ((*node)->isFolder()) return refusal(Failure::refused, path);
    return std::unique_ptr<File>(std::make_unique<MemoryFile>((*node)->content, false, std::string(path)));
}

Result<> MemoryFileSystem::replace(std::string_view from, std::string_view to) {
    std::string fromName;
    std::string toName;
    auto target = parentOf(to, toName);
    if (!target) return target.error();
    auto source = parentOf(from, fromName);
    if (!source && source.error().kind == Failure::badName) return source.error();
    Node* const moved = source ? (*source)->child(fromName) : nullptr;
    if (moved == nullptr) return refusal(Failure::notFound, from);

    Node* const old = (*target)->child(toName);
    if (moved == old) return {};
    const bool readOnly = (*source)->readOnly || (*target)->readOnly || moved->readOnly || (old && old->readOnly);
    if (readOnly || moved->isFolder() || (old && old->isFolder())) return refusal(Failure::refused, to);
    if (moved->isOpen() || (old && old->isOpen())) return refusal(Failure::refused, to);
    // What stands there keeps its spelling and takes the other's content.
    Node* const place = old ? old : (*target)->add(toName, nullptr);
    place->content = moved->content;
    (*source)->children.erase(upperCase(fromName));
    return {};
}

Result<> MemoryFileSystem::remove(std::string_view path) {
    auto node = find(path);
    if (!node) return node.error();
    if ((*node)->isFolder()) return refusal(path.empty() ? Failure::badName : Failure::refused, path);
    std::string name;
    auto parent = parentOf(path, name);
    if (!parent) return parent.error();
    if ((*node)->readOnly || (*parent)->readOnly || (*node)->isOpen()) return refusal(Failure::refused, path);
    (*parent)->children.erase(upperCase(name));
    return {};
}

Result<std::vector<Entry>> MemoryFileSystem::list(std::string_view folder) {
    auto node = find(folder);
    if (!node && node.error().kind == Failure::badName) return node.error();
    if (!node || !(*node)->isFolder()) return refusal(Failure::missingFolder, folder);
    std::vector<Entry> entries;
    for (const auto& [key, child] : (*node)->children) entries.push_back({child->name, child->isFolder()});
    return entries;
}

Result<> MemoryFileSystem::makeFolder(std::string_view path) {
    if (path.empty()) return {};
    std::string name;
    auto parent = parentOf(path, name);
    if (!parent) return parent.error();
    if (const Node* there = (*parent)->child(name)) {
        return there->isFolder() ? Result<>() : refusal(Failure::refused, path);
    }
    if ((*parent)->readOnly) return refusal(Failure::refused, path);
    (*parent)->add(name, nullptr);
    return {};
}

Result<> MemoryFileSystem::removeFolder(std::string_view path) {
    auto node = find(path);
    if (!node) return node.error();
    std::string name;
    auto parent = parentOf(path, name);
    if (!parent) return parent.error();
    const bool readOnly = (*node)->readOnly || (*parent)->readOnly;
    if (readOnly || !(*node)->isFolder() || !(*node)->children.empty()) return refusal(Failure::refused, path);
    (*parent)->children.erase(upperCase(name));
    return {};
}

void MemoryFileSystem::cutPower() {
    root_->forEach([](Node& node) {
        if (node.content) node.content->written = node.content->flushed;
    });
}

void MemoryFileSystem::makeReadOnly(std::string_view path) {
    auto start = find(path);
    if (!start) return;
    (*start)->forEach([](Node& node) {
        node.readOnly = true;
        if (node.content) node.content->readOnly = true;
    });
}

void MemoryFileSystem::leaveRoom(std::uint64_t bytes) { *room_ = bytes; }

}  // namespace vorbano
