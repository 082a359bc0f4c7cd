// The precompiled headers of the tests belong to a library, and a library has a source.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
