#pragma once

// The model's containers as Python sequences: the sorted vectors and the plain vectors, with the
// conversions of their elements.

#include "Aliases.h"
#include "ImplicitConversions.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/Track.h>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// Plain vectors of the model that Python edits in place: bound as sequence types of their own
// instead of being converted to lists. Every source that binds a function taking or returning one
// of them includes this header, so that all of them pass it alike.
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::StreamReferenceVector)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::Track::ChannelVector)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::AnnotationArray)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::MediaAssetGroupItemArray)

namespace Orvik::Python {

/// A position in a container of `size` elements from a Python index, counted from the end when
/// negative. An index before the first element throws IndexError; one past the last is left to
/// the container's own check, so that its message is the library's.
inline std::size_t FromEnd(py::ssize_t index, std::size_t size)
{
    if (index >= 0)
        return static_cast<std::size_t>(index);
    const py::ssize_t position = index + static_cast<py::ssize_t>(size);
    if (position < 0)
        throw py::index_error("index " + std::to_string(index) + " out of range for size " + std::to_string(size));
    return static_cast<std::size_t>(position);
}

/// Deletes a container bound to Python as exactly the class it was created as. The sorted vectors
/// have a virtual Insert but, by design, no virtual destructor; Python only ever destroys the
/// objects it created, of their own class, so destroying them directly is exact (and a plain
/// delete-expression would draw the non-virtual-destructor warning).
template <typename T>
struct DestroyExactly {
    void operator()(T* object) const
    {
        object->T::~T();  // qualified: no virtual dispatch, and none is needed
        ::operator delete(object);
    }
};

/// The holder of the sorted vectors' Python objects.
template <typename T>
using ContainerHolder = std::unique_ptr<T, DestroyExactly<T>>;

/// How elements of a container cross into Python: values as copies, shared pointers shared,
/// weak pointers as the shared pointee (None once it has expired).
template <typename Stored>
struct Element {
    using Python = Stored;
    static Python Out(const Stored& stored) { return stored; }
    static Stored In(const Python& value) { return value; }
};

template <typename T>
struct Element<std::weak_ptr<T>> {
    using Python = std::shared_ptr<T>;
    static Python Out(const std::weak_ptr<T>& stored) { return stored.lock(); }
    static std::weak_ptr<T> In(const Python& value) { return value; }
};

/// The elements of `container`, converted for Python, in order.
template <typename Container>
py::list ToList(const Container& container)
{
    py::list values;
    for (const auto& stored : container)
        values.append(py::cast(Element<std::decay_t<decltype(stored)>>::Out(stored)));
    return values;
}

/// "Name([...])" for a container.
template <typename Container>
std::string ContainerRepr(const char* name, const Container& container)
{
    return std::string(name) + "(" + Repr(ToList(container)) + ")";
}

/// A sorted vector of the model as a Python sequence: len, iteration, indexing and deletion by
/// position, `in`, and the model's own insert rule (an element equal to the one standing at its
/// place is refused with RuntimeError). Indexing returns the element shared (pointers) or copied
/// (values); there is no item assignment, as it could break the order.
template <typename Vector, typename Class>
void DefineSortedVector(Class& cls, const char* name)
{
    using Stored = typename Vector::value_type;
    using E = Element<Stored>;
    using Value = typename E::Python;
    cls.def(py::init<>())
        .def(py::init([](const py::iterable& values) {
                 Vector vector;
                 for (const auto& value : values)
                     vector.Insert(E::In(value.cast<Value>()));
                 return vector;
             }),
             "Inserts each value in turn, as insert() does.")
        .def("__len__", [](const Vector& self) { return self.Size(); })
        .def("__iter__", [](const Vector& self) { return py::iter(ToList(self)); })
        .def("__getitem__",
             [](const Vector& self, py::ssize_t index) { return E::Out(self.At(FromEnd(index, self.Size()))); })
        .def("__delitem__",
             [](Vector& self, py::ssize_t index) {
                 const std::size_t position = FromEnd(index, self.Size());
                 self.CheckIndex(position);
                 self.Erase(self.begin() + static_cast<std::ptrdiff_t>(position));
             })
        .def(
            "__contains__",
            [](const Vector& self, const Value& value) { return self.ConstFind(E::In(value)) != self.end(); },
            py::arg("value").none(false))
        .def(
            "find",
            [](const Vector& self, const Value& value) -> std::optional<Value> {
                const auto found = self.ConstFind(E::In(value));
                return found == self.end() ? std::nullopt : std::optional<Value>(E::Out(*found));
            },
            py::arg("value").none(false), "The stored element equal to `value`, or None.")
        .def(
            "insert", [](Vector& self, const Value& value) { self.Insert(E::In(value)); }, py::arg("value").none(false),
            "Inserts at the sorted place; RuntimeError when an equal element stands there.")
        .def(
            "extend",
            [](Vector& self, const py::iterable& values) {
                for (const auto& value : values)
                    self.Insert(E::In(value.cast<Value>()));
            },
            "Inserts each value in turn; stops at the first refusal, keeping the values inserted before it.")
        .def(
            "replace", [](Vector& self, const Value& old, const Value& value) { self.Replace(E::In(old), E::In(value)); },
            py::arg("old").none(false), py::arg("value").none(false),
            "Takes out the element equal to `old` and inserts `value`; RuntimeError and no change on failure.")
        .def("clear", [](Vector& self) { self.Clear(); })
        .def_property(
            "values", [](const Vector& self) { return ToList(self); },
            [](Vector& self, const py::iterable& values) {
                std::vector<Stored> stored;
                for (const auto& value : values)
                    stored.push_back(E::In(value.cast<Value>()));
                self.Values(stored);
            },
            "The elements as a list; assigning sorts the given values without looking for duplicates.")
        .def(
            "__eq__", [](const Vector& self, const Vector& other) { return self == other; }, py::is_operator())
        .def("__repr__", [name](const Vector& self) { return ContainerRepr(name, self); });
    ConvertsImplicitlyFrom<py::iterable>(cls);
}

/// A plain std::vector of the model (insertion order, duplicates allowed) as a Python sequence.
/// `acceptsNone` says whether a null element may be stored (the model allows it for annotations
/// and group items, whose comparisons treat it as never equal).
template <typename Vector, typename Class>
void DefinePlainVector(Class& cls, const char* name, bool acceptsNone)
{
    using Stored = typename Vector::value_type;
    const auto checked = [acceptsNone](const py::handle& value) {
        if (value.is_none() && !acceptsNone)
            throw py::type_error("None cannot be stored here");
        return value.cast<Stored>();
    };
    cls.def(py::init<>())
        .def(py::init([checked](const py::iterable& values) {
            Vector vector;
            for (const auto& value : values)
                vector.push_back(checked(value));
            return vector;
        }))
        .def("__len__", [](const Vector& self) { return self.size(); })
        .def("__iter__", [](const Vector& self) { return py::iter(ToList(self)); })
        .def("__getitem__",
             [name](const Vector& self, py::ssize_t index) {
                 const std::size_t position = FromEnd(index, self.size());
                 if (position >= self.size())
                     throw py::index_error(std::string(name) + " index out of range");
                 return self[position];
             })
        .def("__setitem__",
             [name, checked](Vector& self, py::ssize_t index, const py::object& value) {
                 const std::size_t position = FromEnd(index, self.size());
                 if (position >= self.size())
                     throw py::index_error(std::string(name) + " index out of range");
                 self[position] = checked(value);
             })
        .def("__delitem__",
             [name](Vector& self, py::ssize_t index) {
                 const std::size_t position = FromEnd(index, self.size());
                 if (position >= self.size())
                     throw py::index_error(std::string(name) + " index out of range");
                 self.erase(self.begin() + static_cast<std::ptrdiff_t>(position));
             })
        .def("append", [checked](Vector& self, const py::object& value) { self.push_back(checked(value)); })
        .def("insert",
             [checked](Vector& self, py::ssize_t index, const py::object& value) {
                 const auto size = static_cast<py::ssize_t>(self.size());
                 const py::ssize_t position = index < 0 ? std::max<py::ssize_t>(0, index + size) : std::min(index, size);
                 self.insert(self.begin() + position, checked(value));
             })
        .def("clear", [](Vector& self) { self.clear(); })
        .def("__repr__", [name](const Vector& self) { return ContainerRepr(name, self); });
    ConvertsImplicitlyFrom<py::iterable>(cls);
}

}  // namespace Orvik::Python
