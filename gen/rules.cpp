#include "rules.hpp"

#include <cctype>
#include <stdexcept>

namespace vtxgen {

// The complex Fourier kernels: size, single-precision rule, double-precision rule.
const std::vector<ComplexRow>& complex_rows()
{
    static const std::vector<ComplexRow> rows = {
        {2, "2", "2"},
        {3, "3", "3"},
        {4, "4", "4"},
        {5, "5", "5"},
        {8, "CT(4,2)", "R(8)"},
    };
    return rows;
}

namespace {

struct Parser {
    const std::string& s;
    std::size_t at = 0;

    [[noreturn]] void fail(const char* what) const
    {
        throw std::invalid_argument("rule \"" + s + "\": " + what + " at " + std::to_string(at));
    }
    void expect(char c)
    {
        if (at >= s.size() || s[at] != c)
            fail("unexpected character");
        ++at;
    }
    int number()
    {
        if (at >= s.size() || !std::isdigit(static_cast<unsigned char>(s[at])))
            fail("number expected");
        int v = 0;
        while (at < s.size() && std::isdigit(static_cast<unsigned char>(s[at])))
            v = 10 * v + (s[at++] - '0');
        return v;
    }
    Rule rule()
    {
        Rule r;
        if (s.compare(at, 3, "CT(") == 0 || s.compare(at, 3, "PF(") == 0) {
            r.kind = s[at] == 'C' ? Rule::Kind::CT : Rule::Kind::PF;
            at += 3;
            r.first = std::make_shared<Rule>(rule());
            expect(',');
            r.second = std::make_shared<Rule>(rule());
            expect(')');
            r.size = r.first->size * r.second->size;
            return r;
        }
        if (s.compare(at, 2, "R(") == 0) {
            at += 2;
            r.kind = Rule::Kind::R;
            r.size = number();
            expect(')');
            return r;
        }
        r.size = number();
        while (at < s.size() && std::isalpha(static_cast<unsigned char>(s[at])))
            r.variant += s[at++];
        return r;
    }
};

}  // namespace

Rule Rule::parse(const std::string& text)
{
    Parser p{text};
    Rule r = p.rule();
    if (p.at != text.size())
        p.fail("trailing characters");
    return r;
}

std::string Rule::text() const
{
    switch (kind) {
    case Kind::Block: return std::to_string(size) + variant;
    case Kind::R: return "R(" + std::to_string(size) + ")";
    default:
        return std::string(kind == Kind::CT ? "CT(" : "PF(") + first->text() + "," + second->text() + ")";
    }
}

}  // namespace vtxgen
