#pragma once

#include "page.hpp"

#include <string>
#include <vector>

namespace nfe_summary {

/// The files that arguments name: each as it is, of a folder those below it whose name ends in
/// .xml, in the order of their names. What cannot be listed is told on standard error.
struct file_list {
    std::vector<std::string> paths;
    bool complete = true;
};
file_list files_of(const std::vector<std::string>& arguments);

/// Shows a line for each invoice, and their sum; the files are read on all cores. A file that
/// cannot be read is told on standard error. Answers the status with which the program ends.
int show_overview(const page& out, const std::vector<std::string>& paths);

} // namespace nfe_summary
