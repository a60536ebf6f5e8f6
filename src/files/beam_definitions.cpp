// Reading the beam definition file: standard sections grouped under five headers.
#include "files/beam_definitions.h"

#include <algorithm>
#include <cstddef>

#include "files/text_fields.h"
#include "files/text_file.h"

namespace flexley {
namespace {

// Far beyond five sections of 500 records with pages of instructions.
constexpr std::size_t kMaxDefinitionBytes = 16 << 20;

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

// The fields of one line. Unlike the load file, this file is written by hand, so a quote left
// open runs to the line end and anything between a closing quote and the next comma is dropped.
void split_line(std::string_view line, std::vector<std::string_view>& fields) {
    std::size_t start = 0;
    while (true) {
        const std::size_t first = line.find_first_not_of(" \t", start);
        std::size_t end;
        if (first != std::string_view::npos && line[first] == '"') {
            const std::size_t close = line.find('"', first + 1);
            const std::size_t stop = close == std::string_view::npos ? line.size() : close;
            fields.push_back(line.substr(first + 1, stop - first - 1));
            end = close == std::string_view::npos ? line.size() : line.find(',', close);
        } else {
            end = line.find(',', start);
            fields.push_back(trim(line.substr(start, end - start)));
        }
        if (end == std::string_view::npos || end >= line.size()) return;
        start = end + 1;
    }
}

std::vector<std::string_view> split_all(std::string_view text) {
    std::vector<std::string_view> fields;
    LineCursor lines(text);
    while (const std::optional<std::string_view> line = lines.next_line()) {
        split_line(*line, fields);
    }
    return fields;
}

std::optional<std::size_t> header_index(std::string_view field) {
    for (std::size_t k = 0; k < kSectionKinds.size(); ++k) {
        if (kSectionKinds[k].header == field) return k;
    }
    return std::nullopt;
}

// Walks the fields: outside a section only headers matter; inside, records of six fields follow
// until an empty name or the end of the file.
class SectionFiller {
  public:
    void take(std::string_view field) {
        if (!section_) {
            open_section(field);
        } else if (!pending_.empty()) {
            add_to_record(field);
        } else if (field.empty()) {
            section_.reset();
        } else {
            pending_.emplace_back(field);
        }
    }

    BeamDefinitions result() && { return std::move(definitions_); }

  private:
    void open_section(std::string_view field) {
        section_ = header_index(field);
        // A header met again starts its section afresh rather than mixing two lists.
        if (section_) definitions_.sections[*section_].clear();
    }

    void add_to_record(std::string_view field) {
        pending_.emplace_back(field);
        if (pending_.size() < 6) return;
        std::vector<SectionRecord>& records = definitions_.sections[*section_];
        // Records beyond the limit are still read as records so their fields are not taken
        // for headers, but they are not kept.
        if (records.size() < static_cast<std::size_t>(kMaxSectionRecords)) {
            records.push_back(
                {pending_[0], pending_[1], pending_[2], pending_[3], pending_[4], pending_[5]});
        }
        pending_.clear();
    }

    BeamDefinitions definitions_;
    std::optional<std::size_t> section_;
    std::vector<std::string> pending_;
};

}  // namespace

BeamDefinitions parse_beam_definitions(std::string_view text) {
    SectionFiller filler;
    for (std::string_view field : split_all(text))
        filler.take(field);
    return std::move(filler).result();
}

std::optional<BeamDefinitions> read_beam_definitions(const std::string& path) {
    const TextRead file = read_text_file(path, kMaxDefinitionBytes);
    if (!file.ok()) return std::nullopt;
    return parse_beam_definitions(file.text);
}

}  // namespace flexley
