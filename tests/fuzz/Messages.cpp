// Which kind of message comes how often.
#include "tests/fuzz/Messages.h"
#include "tests/fuzz/Step.h"

namespace quor::fuzz
{

namespace
{

struct Kind
{
    long weight;
    void (*send)(HWND host, HWND target);
};

constexpr Kind kinds[] = {
    {40, SendMouse}, {30, SendKeys}, {8, SendScroll}, {9, ChangeState},
    {6, SendPaint},  {5, SendText},  {9, SendOdd},
};

long SumOfWeights()
{
    long sum = 0;
    for (const Kind& kind : kinds)
        sum += kind.weight;
    return sum;
}

} // namespace

void SendAnyMessage(HWND host, HWND target)
{
    static const long sum = SumOfWeights();
    long drawn = Dice().Below(sum);
    for (const Kind& kind : kinds)
    {
        if (drawn < kind.weight)
        {
            kind.send(host, target);
            return;
        }
        drawn -= kind.weight;
    }
}

} // namespace quor::fuzz
