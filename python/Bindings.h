#pragma once

// Shared pieces of the Python module orvik_media_assets: identifiers and texts as Python str,
// properties over the model's accessor pairs, the sequence types over the model's containers,
// and the hand-over of essences and locations between Python and the arrays that own them.

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Orvik::Python {

namespace py = pybind11;
namespace MA = Orvik::DataModel::MediaAssets;

/// The bytes of a Python str (UTF-8, lone surrogates written back as the bytes they stand for) or
/// of a bytes object. False for anything else.
bool LoadText(py::handle source, std::string& text);
/// A Python str of `text`; bytes that are not UTF-8 become lone surrogates, so nothing is lost.
py::handle TextToPython(const std::string& text);

/// Python's repr() of `value`, as UTF-8.
std::string Repr(const py::handle& value);
/// Python's repr() of a str holding `text`: the text quoted.
std::string Quoted(const std::string& text);

/// A position in a container of `size` elements from a Python index, counted from the end when
/// negative. An index before the first element throws IndexError; one past the last is left to
/// the container's own check, so that its message is the library's.
std::size_t FromEnd(py::ssize_t index, std::size_t size);

/// A camera letter as Python sees it: "" for none (NUL), otherwise one character.
std::string CameraText(char camera);
/// The camera of a text of at most one character; ValueError for a longer one.
char CameraFromText(const std::string& text);

}  // namespace Orvik::Python

namespace pybind11::detail {

/// The model's string-backed identity and text types travel as Python str (bytes accepted too).
template <typename Text>
struct TextCaster {
    PYBIND11_TYPE_CASTER(Text, const_name("str"));

    bool load(handle source, bool)
    {
        std::string text;
        if (!Orvik::Python::LoadText(source, text))
            return false;
        value = Text(text);
        return true;
    }
    static handle cast(const Text& text, return_value_policy, handle)
    {
        return Orvik::Python::TextToPython(std::string(text));
    }
};

template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::Identifier>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::Identifier> {};
template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName> {};
template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::Utf8String>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::Utf8String> {};

}  // namespace pybind11::detail

// Plain vectors of the model that Python edits in place: bound as sequence types of their own
// instead of being converted to lists.
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::StreamReferenceVector)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::Track::ChannelVector)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::AnnotationArray)
PYBIND11_MAKE_OPAQUE(Orvik::DataModel::MediaAssets::MediaAssetGroupItemArray)

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

namespace Orvik::Python {

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

/// A shared pointer that may be null as Python sees it: None when it is null, and Optional[T] in
/// the signature.
template <typename T>
std::optional<std::shared_ptr<T>> OrNone(std::shared_ptr<T> pointer)
{
    if (pointer)
        return pointer;
    return std::nullopt;
}

/// The name that pybind11's signatures give `T`: the name of the class it is bound as, or its
/// caster's ("str", "int", "Iterable").
template <typename T>
std::string PythonName()
{
    if constexpr (std::is_base_of_v<py::detail::type_caster_generic, py::detail::make_caster<T>>)
        return py::type::of<T>().attr("__name__").template cast<std::string>();
    else
        return py::detail::make_caster<T>::name.text;
}

/// Lets Python pass each `From` wherever the class of `cls` is expected, and ends the class's
/// docstring with the sentence that says so ("Converts implicitly from Stream, str."), where
/// help() shows it and the type stubs read it (generate_stubs.py).
template <typename... From, typename Class>
void ConvertsImplicitlyFrom(Class& cls)
{
    (py::implicitly_convertible<From, typename Class::type>(), ...);
    std::string sentence = "Converts implicitly from ";
    ((sentence += PythonName<From>() + ", "), ...);
    sentence.replace(sentence.size() - 2, 2, ".");
    const py::object doc = cls.attr("__doc__");
    cls.attr("__doc__") = doc.is_none() ? sentence : doc.template cast<std::string>() + "\n\n" + sentence;
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

/// An enumeration of the model as a Python enum whose str() is the value's canonical text.
///
/// The members are the values of the library's table, from 0 up to the first number without a
/// text of its own, named after their text (or after `names`, for a table whose texts are not
/// Python names); a name that is a Python keyword gets a trailing underscore (ArchiveStatus.None_).
/// from_string(text) keeps the tolerant rule: a text that is no value's gives the value 0; with
/// strict=True it raises ValueError "Unknown value : " followed by the text instead.
template <typename E, typename ToText, typename ToValue>
py::enum_<E> BindEnumeration(py::handle scope, const char* name, const char* doc, ToText toText, ToValue toValue,
                             std::vector<const char*> names = {})
{
    py::enum_<E> enumeration(scope, name, doc);
    const py::object isKeyword = py::module_::import("keyword").attr("iskeyword");
    for (std::size_t number = 0;; ++number) {
        const auto value = static_cast<E>(number);
        const std::string text = toText(value);
        bool failed = false;
        if (toValue(text, failed) != value || failed)
            break;
        std::string member = number < names.size() ? names[number] : text;
        if (isKeyword(member).template cast<bool>())
            member += "_";
        enumeration.value(member.c_str(), value);
    }
    enumeration.attr("__str__") = py::cpp_function([toText](E value) { return std::string(toText(value)); },
                                                   py::name("__str__"), py::is_method(enumeration));
    enumeration.def_static(
        "from_string",
        [toValue](const std::string& text, bool strict) {
            bool failed = false;
            const E value = toValue(text, failed);
            if (failed && strict)
                throw py::value_error(BusinessEntityModel::BaseTypes::detail::kUnknownText + text);
            return value;
        },
        py::arg("text"), py::arg("strict") = false,
        "The value whose canonical text is `text` (exact, case-sensitive); any other text gives the "
        "value 0, or ValueError with strict=True.");
    return enumeration;
}

/// A reference to an entity by id and, when it is loaded, by shared pointer (the model's
/// SharedReference). Setting a pointer takes the id from the entity; setting another id drops
/// the pointer. `value` raises RuntimeError "null pointer" when no entity is loaded. An entity or
/// an id converts to a reference wherever one is expected.
template <typename T, typename Class>
void DefineSharedReference(Class& cls, const char* name)
{
    using Reference = BusinessEntityModel::BaseTypes::SharedReference<T>;
    cls.def(py::init<>())
        .def(py::init<const BusinessEntityModel::BaseTypes::Identifier&>(), py::arg("id"))
        .def(py::init<const std::shared_ptr<T>&>(), py::arg("entity"))
        .def_property(
            "id", [](const Reference& self) { return self.Id(); },
            [](Reference& self, const BusinessEntityModel::BaseTypes::Identifier& id) { self.Id(id); })
        .def_property(
            "pointer", [](Reference& self) { return OrNone(self.Pointer()); },
            [](Reference& self, const std::shared_ptr<T>& entity) { self.Pointer(entity); },
            "The referenced entity, shared, or None when only the id is known.")
        .def_property_readonly("value",
                               [](Reference& self) {
                                   self.Value();
                                   return self.Pointer();
                               })
        .def("is_empty", &Reference::IsEmpty)
        .def("__bool__", [](const Reference& self) { return !self.IsEmpty(); })
        .def("__copy__", [](const Reference& self) { return self; })
        .def("__deepcopy__", [](const Reference& self, const py::dict&) { return self; })
        .def("__repr__", [name](const Reference& self) {
            return "<" + std::string(name) + " " + Quoted(self.Id().Value()) + (self.Pointer() ? " loaded>" : ">");
        });
    ConvertsImplicitlyFrom<T, BusinessEntityModel::BaseTypes::Identifier>(cls);
}

/// The objectId property of every persistent entity.
template <typename Class>
void DefineObjectId(Class& cls)
{
    using T = typename Class::type;
    cls.def_property(
        "object_id", [](const T& self) { return self.ObjectId(); }, [](T& self, int64_t value) { self.ObjectId(value); },
        "The key under which a store keeps the entity; -1 until it is stored.");
}

/// __eq__ and __ne__ from the class's operator==.
template <typename Class>
void DefineEquality(Class& cls)
{
    using T = typename Class::type;
    cls.def(
           "__eq__", [](const T& self, const T& other) { return self == other; }, py::is_operator())
        .def(
            "__ne__", [](const T& self, const T& other) { return self != other; }, py::is_operator());
}

/// clone() and __deepcopy__ from the class's Clone(), __copy__ from `copy` (the model's
/// member-wise copy).
template <typename Class, typename Copy>
void DefineCopies(Class& cls, Copy copy)
{
    using T = typename Class::type;
    cls.def("clone", [](const T& self) { return self.Clone(); })
        .def("__deepcopy__", [](const T& self, const py::dict&) { return self.Clone(); })
        .def("__copy__", copy);
}

// One binding function per area; Module.cpp calls them in this order.
void BindBaseTypes(py::module_& module);
void BindTimeValues(py::module_& module, py::module_& timePoints);
void BindTimeTexts(py::module_& timePoints);
void BindEnumerations(py::module_& module);
void BindIdentifiers(py::module_& module);
void BindEssences(py::module_& module);
void BindLocations(py::module_& module);
void BindStreams(py::module_& module);
void BindTracks(py::module_& module);
void BindOperatorMetadata(py::module_& module);
void BindMediaAsset(py::module_& module);
void BindGroups(py::module_& module);
void BindFirstDifference(py::module_& module);

}  // namespace Orvik::Python
