#pragma once

#include "common/values/variant.h"

#include <windows.h>

#include <oleauto.h>

#include <string>

namespace brx::conversions {

// The platform's conversions. A result is a text: the value, exact to the last bit, or "error" and its
// number.

std::string shown(double value);
std::string shown(HRESULT failure);

std::string platform_double(const std::string& text, LCID locale);
std::string platform_single(const std::string& text, LCID locale);
std::string platform_int16(const std::string& text, LCID locale);
std::string platform_int32(const std::string& text, LCID locale);
std::string platform_boolean(const std::string& text, LCID locale);
std::string platform_date(const std::string& text, LCID locale);

std::string platform_single(double number);
std::string platform_int16(double number);
std::string platform_int32(double number);

std::string platform_text(double number, LCID locale);
std::string platform_text(float number, LCID locale);
std::string platform_text(Date date, LCID locale);
std::string platform_text(Currency amount, LCID locale);
std::string platform_text(std::int32_t number, LCID locale);
std::string platform_text(bool truth, LCID locale);

} // namespace brx::conversions
