// Stands for a library whose code does not matter here.
int otherHostLibrary()
{
    return 0;
}
