#include "content.hpp"

#include "language.hpp"
#include "page.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <stdexcept>

namespace nfe_summary {

std::string system_reason(int error) {
    const char* const known = strerrordesc_np(error);
    return translated(known == nullptr ? std::to_string(error) : known);
}

namespace {

[[noreturn]] void fail(int error) {
    throw std::runtime_error(say("cannot be read: {}", system_reason(error)));
}

class open_file {
public:
    explicit open_file(const std::string& path)
        : number_(path == standard_input ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)),
          owned_(path != standard_input) {
        if (number_ < 0) {
            fail(errno);
        }
    }
    ~open_file() {
        if (owned_) {
            close(number_);
        }
    }
    open_file(const open_file&) = delete;
    open_file& operator=(const open_file&) = delete;

    /// How many bytes it seems to have; 0 where that is not known.
    std::size_t size() const {
        struct stat found = {};
        if (fstat(number_, &found) != 0) {
            fail(errno);
        }
        return S_ISREG(found.st_mode) ? static_cast<std::size_t>(found.st_size) : 0;
    }

    /// Fills a buffer as far as there is something.
    std::size_t read(char* buffer, std::size_t room) const {
        std::size_t total = 0;
        while (total < room) {
            const ssize_t count = ::read(number_, buffer + total, room - total);
            if (count < 0 && errno != EINTR) {
                fail(errno);
            }
            if (count == 0) {
                break;
            }
            total += count < 0 ? 0 : static_cast<std::size_t>(count);
        }
        return total;
    }

private:
    int number_;
    bool owned_;
};

} // namespace

std::string content_of(const std::string& path, std::size_t limit) {
    const auto refuse_size = [&] {
        throw std::runtime_error(
            say("larger than the limit of {} MB; --limit raises it", limit / megabyte));
    };
    const open_file file(path);
    const std::size_t expected = file.size();
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
    return path != standard_input && std::filesystem::is_directory(path, ignored);
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
        } else if (is_xml_name(entry->path().native()) && entry->is_regular_file(ignored)) {
            paths.push_back(entry->path().native());
        }
    }
    if (error) {
        complain(folder.native(), say("cannot be read: {}", system_reason(error.value())));
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
        files.complete = add_files(argument, below) && files.complete;
        std::sort(below.begin(), below.end());
        files.paths.insert(files.paths.end(), below.begin(), below.end());
    }
    return files;
}

} // namespace nfe_summary
