#pragma once

#include "platform/values/Types.h"

#include <optional>
#include <variant>

namespace kesta {

// A number as a ticket stores it: the value and the type it was stored with.
class Number {
public:
    enum class Type { kSInt32, kSInt64, kIndex, kFloat32, kFloat64 };

    static Number SInt32(kesta::SInt32 value) { return {Type::kSInt32, kesta::SInt64{value}}; }
    static Number SInt64(kesta::SInt64 value) { return {Type::kSInt64, value}; }
    static Number Index(CFIndex value) { return {Type::kIndex, value}; }
    static Number Float32(kesta::Float32 value) { return {Type::kFloat32, kesta::Float64{value}}; }
    static Number Float64(kesta::Float64 value) { return {Type::kFloat64, value}; }

    Type type() const { return type_; }

    // The value as T (SInt32, SInt64, Float32 or Float64); nothing when T cannot hold exactly this value.
    template <class T> std::optional<T> as() const;

    // Same value and same stored type.
    bool operator==(const Number&) const = default;

private:
    using Content = std::variant<kesta::SInt64, kesta::Float64>;
    Number(Type type, Content content) : type_(type), content_(content) {}

    Type type_;
    Content content_;
};

} // namespace kesta
