#pragma once

// Included before everything else in a build with edits compiled in: what chooses among them.

// A trial of the compiler is none of the product's.
#if __cplusplus > 201703L

#include <type_traits>

namespace brx_mutant {

extern int selected;
extern unsigned char* const reached;

/// Whether the edit is the one that this process runs with; and it is noted that it was reached.
inline bool on(int number) {
    reached[number] = 1;
    return number == selected;
}

template <class Value> bool flipped(int number, const Value& value) {
    return static_cast<bool>(value) != on(number);
}

struct Not {
    int number;
};
template <class Value> bool operator->*(Not edit, const Value& value) { return !value != on(edit.number); }

// `a < Less{1} < b`: the first operator takes the left side, the second one decides. They are found beside
// every type's own operators because one side is of this namespace.

#define BRX_MUTANT_OPERATOR(Name, own, other)                                                                \
    struct Name {                                                                                            \
        int number;                                                                                          \
    };                                                                                                       \
    template <class Left> struct Half##Name {                                                                \
        Left&& left;                                                                                         \
        int number;                                                                                          \
    };                                                                                                       \
    template <class Left> Half##Name<Left> operator own(Left&& left, Name edit) {                            \
        return {static_cast<Left&&>(left), edit.number};                                                     \
    }                                                                                                        \
    template <class Left, class Right> auto operator own(Half##Name<Left> half, Right&& right) {             \
        using Result = std::decay_t<decltype(half.left own right)>;                                          \
        if constexpr (requires { half.left other right; }) {                                                 \
            if (on(half.number)) return static_cast<Result>(half.left other right);                          \
        } else {                                                                                             \
            static_assert(sizeof(Left) == 0, "no such edit");                                                \
        }                                                                                                    \
        return static_cast<Result>(half.left own right);                                                     \
    }

BRX_MUTANT_OPERATOR(Equal, ==, !=)
BRX_MUTANT_OPERATOR(Different, !=, ==)
BRX_MUTANT_OPERATOR(Less, <, <=)
BRX_MUTANT_OPERATOR(NotMore, <=, <)
BRX_MUTANT_OPERATOR(More, >, >=)
BRX_MUTANT_OPERATOR(NotLess, >=, >)
BRX_MUTANT_OPERATOR(Plus, +, -)
BRX_MUTANT_OPERATOR(Minus, -, +)
#undef BRX_MUTANT_OPERATOR

} // namespace brx_mutant

#endif
