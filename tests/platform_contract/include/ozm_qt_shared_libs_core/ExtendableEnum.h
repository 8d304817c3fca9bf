#pragma once

template <typename Data>
class ExtendableEnumRef
{
public:
    ExtendableEnumRef();
};
