#pragma once

#include "platform/values/Value.h"

namespace kesta {

// What the product's printers can do, from the property list "Device Profile" among the plug-in's resources:
//     Features -> feature name -> {Properties -> property name -> value,
//                                  Syntax -> {Keyword -> keyword -> {Properties, Default: boolean}}
//                                            or {Name -> {Default}} or {Number -> {Default}}}
// All answers are empty while no profile is loaded. What is pointed to lives until KDPFinalize.

// Does nothing when a profile is loaded already, or when there is none that can be read.
void KDPInitialize();
void KDPFinalize();

const Dictionary* KDPGetFeature(QAnyStringView name);

// The features that have the property, or have it with this value, in order of their names.
Array KDPGetFeaturesWithProperty(QAnyStringView property);
Array KDPGetFeaturesWithPropertyAndValue(QAnyStringView property, const Value& value);

// An entry of the feature's Syntax, or of its Properties.
const Value* KDPGetFeatureSyntax(const Dictionary& feature, QAnyStringView syntaxKind);
const Value* KDPGetFeatureProperty(const Dictionary& feature, QAnyStringView property);

// The keyword entries (not their names) that have the property with this value, in order of their names.
Array KDPGetKeywordsWithPropertyAndValue(const Dictionary& feature, QAnyStringView property, const Value& value);

struct FeatureDefault {
    QString kind; // "Keyword", "Name" or "Number"
    Value value;  // for "Keyword", the keyword

    bool operator==(const FeatureDefault&) const = default;
};
std::optional<FeatureDefault> KDPGetFeatureDefaultValue(const Dictionary& feature);

} // namespace kesta
