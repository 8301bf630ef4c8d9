double productAndSum(double a, double b, double c);

double productAndSum(double a, double b, double c)
{
    return a * b + c;
}
