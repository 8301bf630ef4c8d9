#include "pelmora/pelmora.h"

#include "tests/printing.h"

#include <chrono>

#include <gtest/gtest.h>

namespace ManagedXML
{
namespace
{

TEST(Namespaces, PrefixesMustBeDeclared)
{
    ManagedXMLParser parser;
    EXPECT_FALSE(parser.parseFromString(u"<p:a/>"));
    EXPECT_FALSE(parser.parseFromString(u"<a p:b='1'/>"));
}

TEST(Namespaces, AnElementTakenOutKeepsItsPrefixes)
{
    ManagedXMLParser parser;
    ASSERT_TRUE(parser.parseFromString(
        u"<Action xmlns:p='urn:n'><Event id='x' p:b='c'><p:d/></Event></Action>"));
    EXPECT_TRUE(parser.parseFromString(parser.getElementWithAttributeValue(u"id", u"x")));
    EXPECT_EQ(parser.getAttribute(u"p:b"), u"c");
}

TEST(ParameterEntities, ABombOfThemEndsSoon)
{
    GString bomb = u"<!DOCTYPE a [<!ENTITY % p0 '<!-- -->'>";
    for (int i = 1; i < 10; ++i) {
        bomb += GString::format(u"<!ENTITY %% p%d '", i);
        for (int k = 0; k < 10; ++k)
            bomb += GString::format(u"&#37;p%d;", i - 1);
        bomb += u"'>";
    }
    // Reads the clock: without a limit this takes minutes, with one a second under valgrind.
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(ManagedXMLParser().parseFromString(bomb + u"%p9;]><a/>"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(Attributes, ManyOfThemAndTheirDefaultsEndSoon)
{
    GString many;
    for (int i = 0; i < 30000; ++i)
        many += GString::format(u" a%d=''", i);
    const GString longDefault(Pelmora::WideString(1U << 20U, 'x'));
    GString elements;
    for (int i = 0; i < 1500; ++i)
        elements += u"<e/>";
    EXPECT_FALSE(ManagedXMLParser().parseFromString(GString(u"<a") + many + u"/>"));
    EXPECT_FALSE(ManagedXMLParser().parseFromString(GString(u"<!DOCTYPE a [<!ATTLIST e d CDATA '") +
                                                    longDefault + u"'>]><a>" + elements + u"</a>"));
}

} // namespace
} // namespace ManagedXML
