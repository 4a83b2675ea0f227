import { serverStories } from '../stories/server';
import { test } from '../support/windows/fixtures';

serverStories(test);
