#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

/// Files and folders that a person names.
namespace nfe_summary {

/// The name of standard input.
inline constexpr const char* standard_input = "-";

inline constexpr std::size_t megabyte = 1'048'576; ///< in bytes

/// A name as the system takes it, and as a text: always UTF-8, which not every system's names are.
std::filesystem::path path_of(const std::string& name);
std::string file_name_of(const std::filesystem::path& path);

/// What the system says of an error, in the chosen language.
std::string system_reason(int error);

/// All of a file. Throws std::runtime_error, without its name, where it cannot be read, is empty,
/// or has more bytes than the limit.
std::string content_of(const std::string& path, std::size_t limit);

/// Whether a path is a folder. What is not there is told when it is read.
bool is_folder(const std::string& path);

/// The files that arguments name: each as it is, of a folder those below it whose name ends in
/// .xml, in the order of their names. What cannot be listed is told on standard error.
struct file_list {
    std::vector<std::string> paths;
    bool complete = true;
};
file_list files_of(const std::vector<std::string>& arguments);

} // namespace nfe_summary
