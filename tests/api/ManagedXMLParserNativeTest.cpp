#include "pelmora/pelmora.h"

#include "tests/printing.h"

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

TEST(Namespaces, DeclarationsAreAttributes)
{
    ManagedXMLParser parser;
    ASSERT_TRUE(parser.parseFromString(u"<a xmlns='urn:d'>x</a>"));
    EXPECT_EQ(parser.getAttribute(u"xmlns"), u"urn:d");
    EXPECT_EQ(parser.getElement(u"a"), u"x");
}

TEST(Namespaces, AnElementTakenOutKeepsItsPrefixes)
{
    ManagedXMLParser parser;
    ASSERT_TRUE(parser.parseFromString(
        u"<Action xmlns:p='urn:n?a&amp;b'><Event id='x' p:b='c'><p:d/></Event></Action>"));
    EXPECT_TRUE(parser.parseFromString(parser.getElementWithAttributeValue(u"id", u"x")));
    EXPECT_EQ(parser.getAttribute(u"p:b"), u"c");
    ASSERT_TRUE(parser.parseFromString(u"<Action><Event id='\u65E5'> y</Event></Action>"));
    EXPECT_EQ(parser.getElementWithAttributeValue(u"id", u"\u65E5"),
              u"<Event id=\"\u65E5\"> y</Event>");
    EXPECT_EQ(parser.getElementWithAttributeValue(u"id", u"\u65E5\"]/text()|//a[@b=\""), u" y");
}

TEST(Limits, OfDepthAndOfAttributes)
{
    GString deep = u"<a/>";
    for (int depth = 2; depth <= 257; ++depth)
        deep = u"<a>" + deep + u"</a>";
    EXPECT_FALSE(ManagedXMLParser().parseFromString(deep));
    GString many;
    for (int i = 1; i <= 4096; ++i)
        many += GString::format(u" a%d=''", i);
    EXPECT_TRUE(ManagedXMLParser().parseFromString(GString(u"<a") + many + u"/>"));
    EXPECT_FALSE(ManagedXMLParser().parseFromString(GString(u"<a") + many + u" b=''/>"));
}

} // namespace
} // namespace ManagedXML
