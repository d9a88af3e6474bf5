// A program that does nothing, whose start others are compared to.
int main() {}
