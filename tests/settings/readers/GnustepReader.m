// Prints what GNUstep's Foundation reads in property lists, one line for each file, in the form
// that OtherReadersTest.cpp describes.   gnustep_reader FILE...

#import <Foundation/Foundation.h>

static NSString* hex(NSData* data) {
  NSMutableString* digits = [NSMutableString string];
  const unsigned char* bytes = [data bytes];
  for (NSUInteger at = 0; at < [data length]; ++at) [digits appendFormat:@"%02x", bytes[at]];
  return digits;
}

static NSString* text(NSString* value) {
  return [@"s" stringByAppendingString:hex([value dataUsingEncoding:NSUTF8StringEncoding])];
}

static NSString* number(NSNumber* value) {
  const char type = [value objCType][0];
  if (type == 'C' || type == 'c' || type == 'B') return [value boolValue] ? @"b1" : @"b0";
  if (type != 'd' && type != 'f') return [@"i" stringByAppendingString:[value stringValue]];
  const double real = [value doubleValue];
  return [@"r" stringByAppendingString:hex([NSData dataWithBytes:&real length:sizeof real])];
}

static NSString* form(id value) {
  if ([value isKindOfClass:[NSString class]]) return text(value);
  if ([value isKindOfClass:[NSNumber class]]) return number(value);
  if ([value isKindOfClass:[NSData class]]) return [@"x" stringByAppendingString:hex(value)];
  if ([value isKindOfClass:[NSDate class]]) {
    const double seconds = [value timeIntervalSinceReferenceDate];
    return [NSString stringWithFormat:@"d%lld", (long long)seconds];
  }
  NSMutableArray* parts = [NSMutableArray array];
  const BOOL isArray = [value isKindOfClass:[NSArray class]];
  for (id entry in value) {
    [parts addObject:isArray ? form(entry)
                             : [NSString stringWithFormat:@"%@ %@", text(entry),
                                                          form([value objectForKey:entry])]];
  }
  if (!isArray) [parts sortUsingSelector:@selector(compare:)];
  [parts insertObject:isArray ? @"[" : @"{" atIndex:0];
  [parts addObject:isArray ? @"]" : @"}"];
  return [parts componentsJoinedByString:@" "];
}

int main(int count, char** arguments) {
  [[NSAutoreleasePool alloc] init];
  for (int at = 1; at < count; ++at) {
    NSData* bytes = [NSData dataWithContentsOfFile:[NSString stringWithUTF8String:arguments[at]]];
    id value = nil;
    @try {
      value = [NSPropertyListSerialization propertyListWithData:bytes
                                                        options:0
                                                         format:NULL
                                                          error:NULL];
    } @catch (NSException* exception) {
    }
    puts(value ? [form(value) UTF8String] : "refused");
  }
  return 0;
}
