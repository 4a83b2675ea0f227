// Ownership of json-c's reference-counted values.
#pragma once
#include <json-c/json.h>

#include <memory>

struct JsonRelease {
    void operator()(json_object* value) const { json_object_put(value); }
};

/// Releases its value at the end of the scope.
using Json = std::unique_ptr<json_object, JsonRelease>;
