#pragma once

// Python properties over the model's accessors.
//
// The model names a getter and its setter alike, `Name()` and `Name(value)`, so `&Class::Name` is
// an overloaded name: def_property cannot take it as it stands, and each accessor would need its
// overload picked by a cast that spells out its whole signature. These macros write the getter
// and setter as lambdas that call the accessor by name instead, leaving the pick to the compiler;
// the setter takes the getter's type.

#include "Aliases.h"

#include <pybind11/pybind11.h>

#include <type_traits>
#include <utility>

/// A read-write property over an accessor pair `Accessor()` / `Accessor(value)`. The getter
/// returns a copy, so a value read from an object never changes behind the caller's back.
#define ORVIK_PROPERTY(Class, name, Accessor)                                                                               \
    def_property(                                                                                                           \
        name, [](const Class& self) { return self.Accessor(); },                                                            \
        [](Class& self, const std::decay_t<decltype(std::declval<const Class&>().Accessor())>& value) {                     \
            self.Accessor(value);                                                                                           \
        })

/// A read-only property over `Accessor()`, returning a copy.
#define ORVIK_READONLY(Class, name, Accessor) def_property_readonly(name, [](const Class& self) { return self.Accessor(); })

/// A property over a member that the object owns (a container, a dictionary): the getter returns
/// the member itself, kept valid by keeping the object alive.
#define ORVIK_MEMBER(Class, name, Accessor)                                                                                 \
    def_property_readonly(                                                                                                  \
        name, [](Class& self) -> decltype(auto) { return self.Accessor(); }, py::return_value_policy::reference_internal)

/// A read-write property over a member that the object owns: the getter returns the member
/// itself (kept valid by keeping the object alive), the setter assigns a copy of `value` to it.
#define ORVIK_MEMBER_PROPERTY(Class, name, Accessor, Type)                                                                  \
    def_property(name,                                                                                                      \
                 py::cpp_function([](Class& self) -> Type& { return self.Accessor(); },                                     \
                                  py::return_value_policy::reference_internal),                                             \
                 [](Class& self, const Type& value) { self.Accessor() = value; })
