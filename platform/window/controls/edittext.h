// A text being edited: its caret, its selection, and what the keys of every text field do. It knows nothing of
// fonts.
#pragma once

#include <cstddef>

#include "platform/window/backend.h"

namespace zentrox {

class EditText {
public:
    // With `lines` the text may hold line ends, which are the pair of carriage return and line feed.
    explicit EditText(bool lines) : lines_(lines) {}

    const Text& text() const { return text_; }
    std::size_t caret() const { return caret_; }
    // The selection, empty at the caret where there is none.
    std::size_t selectionBegin() const { return anchor_ < caret_ ? anchor_ : caret_; }
    std::size_t selectionEnd() const { return anchor_ < caret_ ? caret_ : anchor_; }
    TextView selected() const {
        return TextView(text_).substr(selectionBegin(), selectionEnd() - selectionBegin());
    }

    // At most so many characters; 0 for any number.
    void setMaximum(std::size_t characters) { maximum_ = characters; }
    // Takes a whole new text, as long as it is. The caret stands at its end.
    void set(TextView text);

    // Moves the caret; with `extend` the selection grows along, else it is gone.
    void moveTo(std::size_t place, bool extend);
    void selectAll();
    void selectWord(std::size_t place);

    std::size_t before(std::size_t place) const;
    std::size_t behind(std::size_t place) const;
    std::size_t wordBefore(std::size_t place) const;
    std::size_t wordBehind(std::size_t place) const;

    // Puts a text in place of the selection, without what can't stand in this one, and no longer than the maximum
    // allows. True if that changed anything.
    bool insert(TextView text);
    // Deletes the selection, or where there is none what stands between the caret and `place`.
    bool erase(std::size_t place);

    enum class Answer { unused, moved, changed };
    // What a key does that has nothing to do with lines: left and right, deleting, the clipboard. Where `readOnly`
    // nothing changes.
    Answer key(Backend& backend, int code, bool shift, bool control, bool readOnly);

private:
    Answer move(int code, bool shift, bool control);
    Answer deleting(int code, bool control);
    Answer clipboard(Backend& backend, int code, bool shift, bool control, bool readOnly);

    Text text_;
    std::size_t caret_ = 0;
    std::size_t anchor_ = 0;
    std::size_t maximum_ = 0;
    bool lines_;
};

// Whether a character can be typed into a text.
bool isPrintable(char c);

}  // namespace zentrox
