extern "C" int somethingElse();

extern "C" int somethingElse()
{
    return 1;
}
