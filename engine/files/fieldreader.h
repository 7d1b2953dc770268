// Reads the flat run of fields that room and script files are made of. A field ends at a comma or at a line end;
// both mean the same, so the lines of a file carry no meaning. Blanks before a field are skipped.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/state/zustand.h"
#include "platform/values/error.h"
#include "platform/values/text.h"

namespace zentrox {

// What is wrong in a file of fields, and the byte at which the bad field begins.
class FieldError : public DataError {
public:
    FieldError(const Text& message, const Text& why, std::size_t offset)
        : DataError(message),
          why_(why),
          offset_(offset) {}
    // The message without the file and the place in it.
    const Text& why() const { return why_; }
    std::size_t offset() const { return offset_; }

private:
    Text why_;
    std::size_t offset_;
};

// Every call reads the next field. It throws `FieldError` where the file has ended or holds something else; the
// message names the file, the number of the field, its line, what was expected and what was found.
class FieldReader {
public:
    // `bytes` must outlive it. `what` names the file for people: "Raumdatei rooms\Keller.lsd".
    FieldReader(TextView bytes, TextView what);

    // Decimal digits with or without a sign. A blank ends it as well; an empty field is 0.
    std::int32_t readNumber();
    // "#TRUE#", "#FALSE#", or a number, of which only 0 is false.
    bool readTruth();
    // In quotes, with all that stands between them, or bare up to the separator without the blanks at its end.
    // Behind a comma at the end of the file stands one more text, the empty one.
    Text readText();
    // The last index of a list whose entries have at least `fieldsEach` fields: no more than what is left of the
    // file could hold, nor than any file needs in all its lists. -1 for every one below 0: the list is empty.
    std::int32_t readLast(std::size_t fieldsEach);
    // 3072 numbers, column by column; 255 sets a cell. `mask` must be clear.
    void readMask(Maske& mask);

    // The byte at which the field begins that was read last; of a mask it is not told.
    std::size_t offset() const { return static_cast<std::size_t>(field_ - begin_); }

private:
    std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }
    bool atSeparator() const { return *at_ == ',' || *at_ == '\r' || *at_ == '\n'; }
    bool emptyAtEnd();
    void begin(TextView expected);
    void finish();
    std::int32_t number(TextView expected);
    Text quoted();
    Text bare();
    Text found() const;
    std::size_t line() const;
    [[noreturn]] void fail(TextView why) const;
    [[noreturn]] void failFound(TextView expected) const;

    TextView what_;
    const char* begin_;
    const char* end_;
    const char* at_;
    const char* field_;         // where the present field begins
    std::size_t finished_ = 0;  // so many fields have been read
    std::size_t entries_ = 0;   // of all lists
    bool ended_ = false;        // the empty text at the end has been read
};

}  // namespace zentrox
