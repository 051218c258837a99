#pragma once

#include "common/values/variant.h"
#include "conversions/comparison.h"

namespace brx::conversions {

// Why the platform's implementation at hand may answer otherwise: docs/conversions.md tells more of each
// reason. A reason is only given when it accounts for both answers exactly.

/// For a conversion of a text to a number, a truth or a date.
Comparison::Reason reason_for_text(const Conversion<std::string>& conversion, const std::string& text,
                                   const std::string& ours, const std::string& theirs);

/// For a conversion of a double to text or to a smaller number.
Comparison::Reason reason_for_number(const Conversion<double>& conversion, double number,
                                     const std::string& ours, const std::string& theirs);

/// For a conversion of a value that is neither a text nor a double.
Comparison::Reason reason_for_kind(const std::string& function, const Variant& value,
                                   const std::string& theirs);

/// Asks both sides and compares.
void compare(Comparison& comparison, const Conversion<std::string>& conversion, const std::string& text);
void compare(Comparison& comparison, const Conversion<double>& conversion, double number);

} // namespace brx::conversions
