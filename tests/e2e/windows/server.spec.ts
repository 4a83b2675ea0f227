import { serverStories } from '../stories/server';
import { test } from '../support/windowsFixtures';

serverStories(test);
