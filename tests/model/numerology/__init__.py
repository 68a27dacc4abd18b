"""A second implementation of all calculators and of the rendering.

It was written from the described behaviour alone, and it exists to disagree: when a rule is
wrong in the program, this model must not share the fault. So never copy a rule from the C++
sources into it, and never look there how something is meant; plain code comes before fast
code. Only the prose is shared: it comes from the program's own book of readings.
"""
