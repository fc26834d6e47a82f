#include "attributestore.h"
#include "lcontrollernode.h"
#include "leffectnode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <type_traits>

namespace {

template <typename Type>
using Argument = std::conditional_t<std::is_class_v<Type>, const Type &, Type>;

} // namespace

#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    Type Class::Getter() const                                                                     \
    {                                                                                              \
        return readAttribute(Attribute(QStringLiteral(Key)), static_cast<Type>(Default));          \
    }                                                                                              \
    void Class::Setter(Argument<Type> value)                                                       \
    {                                                                                              \
        SetAttribute(QStringLiteral(Key), value);                                                  \
    }
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
