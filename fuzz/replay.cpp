// Plays a fuzz target without the fuzzer, in every run of the tests: each file of its corpus as it is, and mutations of
// it that are the same in every run. `replay FOLDER MUTATIONS`

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> corpusIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> corpus;
    for (const auto& path : paths) {
        std::ifstream in(path, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return corpus;
}

class Mutator {
  public:
    void change(Bytes& bytes) {
        for (auto times = 1 + below(4); times > 0; --times) changeOnce(bytes);
    }
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(dice_() % count); }

  private:
    void changeOnce(Bytes& bytes) {
        if (bytes.empty()) bytes.push_back(0);
        const std::size_t at = below(bytes.size());
        const auto here = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        switch (below(6)) {
            case 0:
                bytes[at] = static_cast<std::uint8_t>(dice_());
                break;
            case 1:
                bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ (1U << below(8)));
                break;
            case 2:
                bytes.resize(at);
                break;
            case 3:
                bytes.insert(here, 1 + below(9), bytes[at]);
                break;
            case 4:
                std::fill(here, bytes.begin() + static_cast<std::ptrdiff_t>(std::min(bytes.size(), at + 8)),
                          below(2) == 0 ? std::uint8_t{0xFF} : std::uint8_t{0});
                break;
            default:
                std::rotate(bytes.begin(), here, bytes.end());
        }
    }

    std::mt19937_64 dice_{1};
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const auto corpus = corpusIn(argv[1]);
    if (corpus.empty()) {
        std::cerr << "nothing in " << argv[1] << "\n";
        return 2;
    }
    for (const Bytes& bytes : corpus) LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    Mutator mutator;
    const int mutations = std::stoi(argv[2]);
    for (int done = 0; done < mutations; ++done) {
        Bytes bytes = corpus[mutator.below(corpus.size())];
        mutator.change(bytes);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::cout << corpus.size() << " files of the corpus and " << mutations << " mutations\n";
    return 0;
}
