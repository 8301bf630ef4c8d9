#include "pelmora/pelmora.h"

#include "tests/printing.h"

#include <gtest/gtest.h>

namespace ManagedXML
{
namespace
{

TEST(XmlNamespaces, PrefixesMustBeDeclared)
{
    ManagedXMLParser parser;
    EXPECT_FALSE(parser.parseFromString(u"<p:a/>"));
    EXPECT_FALSE(parser.parseFromString(u"<a p:b='1'/>"));
}

TEST(XmlNamespaces, AnElementTakenOutKeepsItsPrefixes)
{
    ManagedXMLParser parser;
    ASSERT_TRUE(parser.parseFromString(
        u"<Action xmlns:p='urn:n'><Event id='x' p:b='c'><p:d/></Event></Action>"));
    EXPECT_TRUE(parser.parseFromString(parser.getElementWithAttributeValue(u"id", u"x")));
    EXPECT_EQ(parser.getAttribute(u"p:b"), u"c");
}

} // namespace
} // namespace ManagedXML
