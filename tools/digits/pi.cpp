#include "tools/digits/pi.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace zentrox {

namespace {

constexpr std::uint64_t base = 1'000'000'000;
constexpr std::size_t digitsOfPart = 9;
constexpr std::size_t guardParts = 2;  // each term is cut off, so the last digits are wrong

// A number below `base` with many digits behind the point: the first part is the whole, the others follow it.
using Fixed = std::vector<std::uint64_t>;

// Parts before `from` are known to be 0.
void divide(Fixed& number, std::uint64_t by, std::size_t from) {
    std::uint64_t rest = 0;
    for (std::size_t i = from; i < number.size(); ++i) {
        const std::uint64_t value = rest * base + number[i];
        number[i] = value / by;
        rest = value % by;
    }
}

void add(Fixed& sum, const Fixed& number) {
    std::uint64_t carry = 0;
    for (std::size_t i = sum.size(); i-- > 0;) {
        sum[i] += number[i] + carry;
        carry = sum[i] >= base ? 1 : 0;
        sum[i] -= carry * base;
    }
}

void subtract(Fixed& sum, const Fixed& number) {
    std::uint64_t borrow = 0;
    for (std::size_t i = sum.size(); i-- > 0;) {
        const std::uint64_t taken = number[i] + borrow;
        borrow = sum[i] < taken ? 1 : 0;
        sum[i] += borrow * base - taken;
    }
}

// factor * arctan(1 / x), by its series.
Fixed arctan(std::uint64_t factor, std::uint64_t x, std::size_t parts) {
    Fixed power(parts);
    power[0] = factor;
    divide(power, x, 0);
    Fixed sum = power;
    std::size_t from = 0;
    for (std::uint64_t n = 3;; n += 2) {
        divide(power, x * x, from);
        while (from < parts && power[from] == 0) ++from;
        if (from == parts) return sum;
        Fixed term = power;
        divide(term, n, from);
        if (n % 4 == 1)
            add(sum, term);
        else
            subtract(sum, term);
    }
}

}  // namespace

// Machin's formula: pi = 16 arctan(1/5) - 4 arctan(1/239).
std::string piCharacters(std::size_t count) {
    const std::size_t parts = 1 + count / digitsOfPart + 1 + guardParts;
    Fixed pi = arctan(16, 5, parts);
    subtract(pi, arctan(4, 239, parts));
    std::string text = std::to_string(pi[0]) + ".";
    for (std::size_t i = 1; i < parts; ++i) {
        const std::string part = std::to_string(pi[i]);
        text += std::string(digitsOfPart - part.size(), '0') + part;
    }
    text.resize(std::min(count, text.size()));
    return text;
}

}  // namespace zentrox
