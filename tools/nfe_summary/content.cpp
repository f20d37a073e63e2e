#include "content.hpp"

#include "language.hpp"
#include "page.hpp"
#include "platform.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <stdexcept>

namespace nfe_summary {

std::filesystem::path path_of(const std::string& name) {
    return std::u8string(name.begin(), name.end());
}

std::string file_name_of(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

std::string system_reason(int error) { return translated(platform::meaning_of(error)); }

namespace {

[[noreturn]] void fail(int error) {
    throw std::runtime_error(say("cannot be read: {}", system_reason(error)));
}

class open_file {
public:
    explicit open_file(const std::string& path)
        : stream_(path == standard_input ? stdin : std::fopen(path.c_str(), "rb")) {
        if (stream_ == nullptr) {
            const int error = errno;
            fail(is_folder(path) ? EISDIR : error); // Windows has another word for it
        }
    }
    ~open_file() {
        if (stream_ != stdin) {
            std::fclose(stream_);
        }
    }
    open_file(const open_file&) = delete;
    open_file& operator=(const open_file&) = delete;

    /// Fills a buffer as far as there is something.
    std::size_t read(char* buffer, std::size_t room) const {
        const std::size_t count = std::fread(buffer, 1, room, stream_);
        if (std::ferror(stream_) != 0) {
            fail(errno);
        }
        return count;
    }

private:
    std::FILE* stream_;
};

/// How many bytes a file seems to have; 0 where that is not known.
std::size_t size_of(const std::string& path) {
    std::error_code unknown;
    const auto size = std::filesystem::file_size(path_of(path), unknown);
    return unknown || path == standard_input ? 0 : static_cast<std::size_t>(size);
}

} // namespace

std::string content_of(const std::string& path, std::size_t limit) {
    const auto refuse_size = [&] {
        throw std::runtime_error(
            say("larger than the limit of {} MB; --limit raises it", limit / megabyte));
    };
    const open_file file(path);
    const std::size_t expected = size_of(path);
    if (expected > limit) {
        refuse_size();
    }
    std::string content;
    std::size_t used = 0;
    do {
        // one byte more shows that there is no more
        content.resize(used == 0 ? std::max(expected + 1, std::size_t{65'536}) : 2 * used);
        used += file.read(content.data() + used, content.size() - used);
        if (used > limit) {
            refuse_size();
        }
    } while (used == content.size());
    content.resize(used);
    if (content.empty()) {
        throw std::runtime_error(tr("is empty"));
    }
    return content;
}

bool is_folder(const std::string& path) {
    std::error_code ignored;
    return path != standard_input && std::filesystem::is_directory(path_of(path), ignored);
}

namespace {

bool is_xml_name(const std::string& name) {
    return name.ends_with(".xml") || name.ends_with(".XML");
}

/// Adds the files below a folder; false where a folder cannot be listed.
bool add_files(const std::filesystem::path& folder, std::vector<std::string>& paths) {
    std::error_code error;
    bool complete = true;
    std::vector<std::filesystem::path> folders;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored; // what is not there any more is neither
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            folders.push_back(entry->path());
        } else if (is_xml_name(file_name_of(entry->path())) && entry->is_regular_file(ignored)) {
            paths.push_back(file_name_of(entry->path()));
        }
    }
    if (error) {
        complain(file_name_of(folder), say("cannot be read: {}", system_reason(error.value())));
    }
    for (const std::filesystem::path& inner : folders) { // one folder is open at a time
        complete = add_files(inner, paths) && complete;
    }
    return complete && !error;
}

} // namespace

file_list files_of(const std::vector<std::string>& arguments) {
    file_list files;
    for (const std::string& argument : arguments) {
        if (!is_folder(argument)) {
            files.paths.push_back(argument);
            continue;
        }
        std::vector<std::string> below;
        files.complete = add_files(path_of(argument), below) && files.complete;
        std::sort(below.begin(), below.end());
        files.paths.insert(files.paths.end(), below.begin(), below.end());
    }
    return files;
}

} // namespace nfe_summary
