#include "author/recordfile.h"

#include <iostream>
#include <system_error>

namespace zentrox::author {

namespace fs = std::filesystem;

void RecordText::line(const std::string& line) {
    tail_.clear();
    if (lines_.size() >= most) {
        lines_.erase(lines_.begin(), lines_.begin() + most / 2);
        cut_ = true;
    }
    lines_.push_back(last_ = line);
}

void RecordText::changeLast(const std::string& line) {
    if (!lines_.empty()) lines_.pop_back();
    RecordText::line(line);
}

std::string RecordText::text() const {
    std::string all;
    for (const std::string& line : lines_) all += line + '\n';
    return tail_.empty() ? all : all + tail_ + '\n';
}

void RecordText::clear() {
    lines_.clear();
    tail_.clear();
    last_.clear();
    cut_ = false;
}

RecordFile::RecordFile(const fs::path& path, bool goOn) : path_(path) {
    constexpr auto both = std::ios::binary | std::ios::in | std::ios::out;
    if (!goOn || !fs::exists(path)) std::ofstream(path, std::ios::binary | std::ios::trunc);
    file_.open(path, both);
    if (!file_) throw std::system_error(errno, std::generic_category(), path.string());
    end_ = size_ = lastAt_ = fs::file_size(path);
}

void RecordFile::changeLast(const std::string& line) {
    end_ = lastAt_;
    put(line, false);
}

void RecordFile::put(const std::string& line, bool tail) {
    write(line);
    if (tail) return;
    lastAt_ = end_;
    end_ += line.size() + 1;
    last_ = line;
}

// A disk that is full does not end the play; it is told of once.
void RecordFile::write(const std::string& line) {
    std::error_code error;
    const std::uintmax_t size = end_ + line.size() + 1;
    file_.clear();
    file_.seekp(static_cast<std::streamoff>(end_));
    file_ << line << '\n' << std::flush;
    const bool written = static_cast<bool>(file_);
    if (written && size < size_) fs::resize_file(path_, size, error);
    size_ = size;
    if ((written && !error) || failed_) return;
    failed_ = true;
    std::cerr << path_.string() << ": the record can't be written on\n";
}

}  // namespace zentrox::author
