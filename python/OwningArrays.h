#pragma once

// The model's owning arrays of polymorphic objects (the essences or locations of a stream) as
// Python sequences, and the hand-over of their elements between Python and the array.

#include "Aliases.h"
#include "Containers.h"
#include "Repr.h"

#include <pybind11/pybind11.h>

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace Orvik::Python {

/// Hands an object owned by a Python wrapper over to C++ and back, for the classes that the model
/// owns by unique pointer (essences in an EssenceArray, locations in a LocationArray).
///
/// Release() takes the object out of its Python wrapper, which from then on refers to it where
/// the array keeps it (and keeps the array alive). Return() gives an object that leaves its
/// array back to its Python wrapper, if one exists, so that no Python name is left dangling;
/// without a wrapper the object is destroyed.
template <typename Base, typename... Concrete>
struct OwnershipTransfer {
    static std::unique_ptr<Base> Release(const py::handle& object)
    {
        if (!py::isinstance<Base>(object))
            throw py::type_error("expected " + std::string(py::detail::get_type_info(typeid(Base))->type->tp_name) + ", got "
                                 + std::string(Py_TYPE(object.ptr())->tp_name));
        auto* instance = reinterpret_cast<py::detail::instance*>(object.ptr());
        auto holder = instance->get_value_and_holder(py::detail::get_type_info(Py_TYPE(object.ptr())));
        if (!instance->owned || !holder.holder_constructed())
            throw py::value_error("the object already belongs to an array; remove it from there first or add a clone");
        std::unique_ptr<Base> released;
        const bool known = ((holder.type->cpptype == &typeid(Concrete) && Take<Concrete>(holder, released)) || ...);
        if (!known)
            throw py::type_error("cannot take over an object of class " + std::string(holder.type->type->tp_name));
        instance->owned = false;
        return released;
    }

    static void Return(std::unique_ptr<Base> element)
    {
        if (!element)
            return;
        const auto* type = py::detail::get_type_info(typeid(*element));
        if (type == nullptr)
            return;
        const py::handle wrapper = py::detail::get_object_handle(element.get(), type);
        if (!wrapper)
            return;
        auto* instance = reinterpret_cast<py::detail::instance*>(wrapper.ptr());
        auto holder = instance->get_value_and_holder(type);
        ((type->cpptype == &typeid(Concrete) && Give<Concrete>(holder, element)) || ...);
        instance->owned = true;
    }

private:
    template <typename C>
    static bool Take(py::detail::value_and_holder& holder, std::unique_ptr<Base>& released)
    {
        auto& owner = holder.template holder<std::unique_ptr<C>>();
        released.reset(owner.release());
        owner.~unique_ptr<C>();
        holder.set_holder_constructed(false);
        return true;
    }

    template <typename C>
    static bool Give(py::detail::value_and_holder& holder, std::unique_ptr<Base>& element)
    {
        new (std::addressof(holder.template holder<std::unique_ptr<C>>()))
            std::unique_ptr<C>(static_cast<C*>(element.release()));
        holder.set_holder_constructed(true);
        return true;
    }
};

/// An owning array of polymorphic objects (the essences or locations of a stream) as a Python
/// sequence. Indexing returns the element itself, kept valid by keeping the array alive; append
/// and insert take the object over from its Python name, which keeps referring to it; deletion
/// and clear() give removed objects back to their Python names. Out-of-range positions raise
/// IndexError with the library's message.
template <typename Array, typename Transfer, typename Class>
void DefineOwningArray(Class& cls, const char* name)
{
    using Base = std::remove_reference_t<decltype(std::declval<Array&>()[0])>;
    const auto takeOut = [](Array& self, int position) {
        std::unique_ptr<Base> taken = std::move(*(self.begin() + position));
        self.Erase(position);
        return taken;
    };
    cls.def("__len__", [](const Array& self) { return self.Size(); })
        .def(
            "__getitem__",
            [](Array& self, py::ssize_t index) -> Base& {
                return self.At(static_cast<int>(FromEnd(index, static_cast<std::size_t>(self.Size()))));
            },
            py::return_value_policy::reference_internal)
        .def("__iter__",
             [](py::object self) {
                 py::list values;
                 for (py::ssize_t i = 0, size = py::len(self); i < size; ++i)
                     values.append(self.attr("__getitem__")(i));
                 return py::iter(values);
             })
        .def("append",
             [](py::object self, const py::object& element) {
                 auto& array = self.cast<Array&>();
                 array.Add(Transfer::Release(element));
                 py::detail::keep_alive_impl(element, self);
             })
        .def("insert",
             [](py::object self, int index, const py::object& element) {
                 auto& array = self.cast<Array&>();
                 std::unique_ptr<Base> released = Transfer::Release(element);
                 try {
                     array.Insert(index, std::move(released));
                 } catch (...) {
                     Transfer::Return(std::move(released));
                     throw;
                 }
                 py::detail::keep_alive_impl(element, self);
             })
        .def("__delitem__",
             [takeOut](Array& self, py::ssize_t index) {
                 const int position = static_cast<int>(FromEnd(index, static_cast<std::size_t>(self.Size())));
                 self.At(position);
                 Transfer::Return(takeOut(self, position));
             })
        .def("clear",
             [takeOut](Array& self) {
                 while (!self.Empty())
                     Transfer::Return(takeOut(self, self.Size() - 1));
             })
        .def(
            "__eq__", [](const Array& self, const Array& other) { return self == other; }, py::is_operator())
        .def("__repr__", [name](py::object self) {
            py::list values;
            for (const auto& value : self)
                values.append(value);
            return std::string(name) + "(" + Repr(values) + ")";
        });
}

}  // namespace Orvik::Python
